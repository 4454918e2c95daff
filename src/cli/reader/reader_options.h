// What a run was told of its reader: the password of a document, and which of its layers are seen.
#pragma once

#include <QByteArray>
#include <QList>
#include <QString>
#include <QStringList>

#include <functional>

#include "cli/arguments/arguments.h"
#include "picture/chosen_document.h"

namespace norvex {

/// A layer shown or hidden. It is meant by its name, or by its number from 1.
struct LayerSwitch {
  QString layer;
  bool shown = true;
};

/// Of --password-file and --layers.
struct ReaderOptions {
  QString password;
  QList<LayerSwitch> switches;
};

/// The options, or what is wrong with them in one sentence, which never holds the password. `standardInput`
/// is asked for a password that comes from there.
[[nodiscard]] Result<ReaderOptions> readerOptions(const Arguments& arguments,
                                                  const std::function<Result<QByteArray>()>& standardInput);

/// Puts the bytes to open in the place of the source's, and gives what there is to tell of them. Fails with
/// Encrypted for a wrong password, and with Unsupported for layers that are not there or that the document
/// locks; the source then keeps its bytes. Blocks; any thread.
[[nodiscard]] Result<QStringList> readAsOptioned(PictureService& service, PictureSource& source,
                                                 const ReaderOptions& options,
                                                 const PictureLimits& limits = {},
                                                 const CancelToken& cancel = {});

}  // namespace norvex
