#include "window/commands/save_as_command.h"

#include <QEventLoop>
#include <QGuiApplication>
#include <QMainWindow>
#include <QScopeGuard>
#include <QTimer>

#include <algorithm>
#include <exception>
#include <new>

#include "base/background_work.h"
#include "base/localized_string.h"
#include "base/path_extension.h"
#include "desktop/alert.h"
#include "desktop/save_panel.h"
#include "display/norvex_view.h"
#include "document/document.h"
#include "document/unimplemented_method.h"
#include "picture/web_image_rep.h"
#include "window/commands/window_parts.h"
#include "window/commands/window_producers.h"

namespace norvex {

namespace {

QUrl urlForType(const QUrl& url, const UTType& type) {
  const QString extension = pathExtension(url.path());
  const auto known = UTType::typeWithFilenameExtension(extension);
  if (known && *known == type) return url;
  QUrl target = url;
  // Only what names another kind of file is an extension to be replaced; "Map 1.5" keeps its name.
  target.setPath((known ? pathWithoutExtension(url.path()) : url.path()) + u'.' +
                 type.preferredFilenameExtension());
  return target;
}

}  // namespace

QList<UTType> SaveAsCommand::writableTypes() const {
  QList<UTType> types{*UTType::typeWithIdentifier(NorvexEPSType), *UTType::typeWithIdentifier(NorvexEPSIType),
                      UTTypePDF()};
  const NorvexView* const view = parts_.view();
  if (view && dynamic_cast<const ZyWebImageRep*>(view->imageRep().get()))
    types << UTTypeSVG() << *UTType::typeWithIdentifier(NorvexSVGZType);
  return types << UTTypeTIFF() << UTTypePNG() << UTTypeJPEG() << UTTypeGIF();
}

void SaveAsCommand::run(const QString& title) {
  Document* const document = parts_.document();
  if (!document || saving_ || !parts_.validateUserInterfaceItem()) return;
  const QList<UTType> types = writableTypes();
  const auto own = UTType::typeWithIdentifier(document->fileType());
  const qsizetype at = own ? types.indexOf(*own) : -1;
  SavePanelSettings settings;
  settings.title = title;
  settings.allowedContentTypes = types;
  settings.selectedContentType = std::max(0, int(at >= 0 ? at : types.indexOf(UTTypePDF())));
  settings.allowsOtherFileTypes = false;
  settings.canSelectHiddenExtension = true;
  settings.directoryURL = document->fileURL().adjusted(QUrl::RemoveFilename | QUrl::StripTrailingSlash);
  settings.nameFieldStringValue = pathWithoutExtension(document->displayName());
  settings.target = [types](const QUrl& url, int type) {
    return type >= 0 && type < types.size() ? urlForType(url, types.at(type)) : url;
  };
  parts_.savePanel().beginSheetModalForWindow(
      parts_.mainWindow(), settings, [this, types, target = settings.target](const SavePanelAnswer& answer) {
        if (!answer.ok || answer.contentType < 0 || answer.contentType >= types.size()) return;
        const QUrl url = target(answer.url, answer.contentType);
        // From the event loop: what it may throw is for the application to tell, not for the panel to end on.
        QTimer::singleShot(0, this, [this, url, type = types.at(answer.contentType)] { write(url, type); });
      });
}

void SaveAsCommand::workBesideTheWindow(const std::function<void()>& work, const CancelToken& cancel) {
  const int number = parts_.work().begin(WindowWork::Kind::Writing, localizedString("Writing…"), cancel);
  QEventLoop loop;
  std::exception_ptr thrown;  // it is for the application to tell, as if there were no other thread
  const BackgroundWork working = workInBackground(
      &loop,
      [&work, &thrown] {
        try {
          work();
        } catch (...) {
          thrown = std::current_exception();
        }
      },
      [&loop] { loop.quit(); });
  loop.exec();
  working.wait();  // a program that is ending ends the loop before the work
  parts_.work().end(number);
  if (thrown) std::rethrow_exception(thrown);
}

void SaveAsCommand::write(const QUrl& url, const UTType& type) {
  Document* const document = parts_.document();
  if (!document || saving_) return;
  document->setAlertPresenter(parts_.alerts());
  saving_ = true;
  bool stopped = false;
  // The document asks, makes and writes in one go; only the making takes time.
  producers_.setRunner([this, &stopped](const std::function<void()>& making, const CancelToken& cancel) {
    if (stopped) return;  // some types are made in two steps
    workBesideTheWindow(making, cancel);
    stopped = cancel.cancelled();
  });
  const auto end = qScopeGuard([this] {
    producers_.setRunner(nullptr);
    saving_ = false;
    emit ended();
  });
  DocumentError error;
  try {
    if (document->writeToURL(url, type.identifier(), &error)) return parts_.tell(producers_.lastWarnings());
  } catch (const UnimplementedMethod&) {
    if (stopped) return;  // nothing is to be told about what the user stopped
    emit failed();
    throw;
  } catch (const std::bad_alloc&) {
    emit failed();
    throw;
  }
  emit failed();
  if (!error.recoverySuggestion.isEmpty())
    parts_.showWriteFailure({ErrorKind::CannotWrite, error.recoverySuggestion}, url.toLocalFile());
}

}  // namespace norvex
