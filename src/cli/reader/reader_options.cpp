#include "cli/reader/reader_options.h"

#include <optional>
#include <utility>

#include "picture/document_file.h"
#include "protocol/limits.h"

namespace norvex {
namespace {

Error wrong(const QString& sentence) {
  return {ErrorKind::Unsupported, sentence};
}

Result<QString> passwordIn(const QString& file, const std::function<Result<QByteArray>()>& standardInput) {
  const Result<QByteArray> bytes = file == u"-" ? standardInput() : readDocumentFile(file);
  if (!bytes) return wrong(QStringLiteral("--password-file: %1: %2").arg(file, bytes.error().message));
  const qsizetype end = bytes->indexOf('\n');
  QByteArray line = end < 0 ? *bytes : bytes->left(end);
  if (line.endsWith('\r')) line.chop(1);
  const QString password = QString::fromUtf8(line);
  if (password.isEmpty())
    return wrong(QStringLiteral("--password-file: %1: its first line is empty").arg(file));
  if (password.size() > limits::maximumPasswordLength)
    return wrong(QStringLiteral("--password-file: %1: its first line is too long").arg(file));
  return password;
}

Result<QList<LayerSwitch>> switchesIn(const QString& text) {
  QList<LayerSwitch> switches;
  for (const QString& part : text.split(u',')) {
    const qsizetype sign = part.lastIndexOf(u'=');
    const QString layer = part.left(sign).trimmed(), state = part.mid(sign + 1).trimmed();
    const bool shown = state == u"on";
    if (sign < 0 || layer.isEmpty() || (!shown && state != u"off"))
      return wrong(QStringLiteral("--layers is LAYER=on or LAYER=off, with commas between several"));
    switches.append({layer, shown});
  }
  return switches;
}

/// Names first: a layer may be called by a number.
QList<qsizetype> layersMeant(const QString& layer, const QList<PictureLayer>& layers) {
  QList<qsizetype> meant;
  for (qsizetype i = 0; i < layers.size(); ++i)
    if (layers[i].name == layer) meant << i;
  bool isNumber = false;
  const qsizetype number = layer.toLongLong(&isNumber);
  if (meant.isEmpty() && isNumber && number >= 1 && number <= layers.size()) meant << number - 1;
  return meant;
}

Error noSuchLayer(const QString& layer, const QList<PictureLayer>& layers) {
  if (layers.isEmpty()) return wrong(QStringLiteral("the document has no layers"));
  return wrong(QStringLiteral("there is no layer %1 among the %2 of the document (norvex info lists them)")
                   .arg(layer)
                   .arg(layers.size()));
}

/// Shown by the document in spite of what was asked.
std::optional<Error> lockedLayer(const QList<PictureLayer>& wanted, const QList<qsizetype>& meant,
                                 const QList<PictureLayer>& made) {
  for (const qsizetype i : meant)
    if (i >= made.size() || made[i].shown != wanted[i].shown)
      return wrong(QStringLiteral("the document does not let its layer %1 be switched").arg(wanted[i].name));
  return std::nullopt;
}

Result<PictureBytes> withLayers(PictureService& service, PictureBytes document,
                                const QList<LayerSwitch>& switches, const PictureLimits& limits,
                                const CancelToken& cancel) {
  const Result<PictureFacts> facts = service.open(document.bytes, PictureKind::Pdf, limits)->facts(cancel);
  if (!facts) return facts.error();
  ReaderChoices choices{{}, facts->layers};
  QList<qsizetype> meant;
  for (const LayerSwitch& one : switches) {
    const QList<qsizetype> these = layersMeant(one.layer, facts->layers);
    if (these.isEmpty()) return noSuchLayer(one.layer, facts->layers);
    for (const qsizetype i : these) choices.layers[i].shown = one.shown;
    meant += these;
  }
  Result<PictureBytes> made = service.chosenPdf(document.bytes, choices, limits, cancel);
  if (!made) return made;
  const Result<PictureFacts> now = service.open(made->bytes, PictureKind::Pdf, limits)->facts(cancel);
  if (!now) return now.error();
  if (auto error = lockedLayer(choices.layers, meant, now->layers)) return *error;
  made->report.warnings = document.report.warnings + made->report.warnings;
  return made;
}

Result<PictureBytes> documentAsOptioned(PictureService& service, const PictureSource& source,
                                        const ReaderOptions& options, const PictureLimits& limits,
                                        const CancelToken& cancel) {
  Result<PictureBytes> opened = documentAsChosen(service, source, {options.password, {}}, limits, cancel);
  if (!opened || options.switches.isEmpty()) return opened;
  const Result<PictureKind> kind = pictureKindOf(source.bytes, source.typeIdentifier);
  if (!kind || *kind != PictureKind::Pdf) return noSuchLayer({}, {});
  return withLayers(service, std::move(*opened), options.switches, limits, cancel);
}

}  // namespace

Result<ReaderOptions> readerOptions(const Arguments& arguments,
                                    const std::function<Result<QByteArray>()>& standardInput) {
  ReaderOptions options;
  if (arguments.has(Option::PasswordFile)) {
    const QString file = arguments.values.value(Option::PasswordFile);
    if (file == u"-" && arguments.timesInputIsRead() > 0)
      return wrong(QStringLiteral("the file and its password cannot both come from standard input"));
    Result<QString> password = passwordIn(file, standardInput);
    if (!password) return password.error();
    options.password = std::move(*password);
  }
  if (arguments.has(Option::Layers)) {
    Result<QList<LayerSwitch>> switches = switchesIn(arguments.values.value(Option::Layers));
    if (!switches) return switches.error();
    options.switches = std::move(*switches);
  }
  return options;
}

Result<QStringList> readAsOptioned(PictureService& service, PictureSource& source,
                                   const ReaderOptions& options, const PictureLimits& limits,
                                   const CancelToken& cancel) {
  Result<PictureBytes> read = documentAsOptioned(service, source, options, limits, cancel);
  if (!read) return read.error();
  source.bytes = std::move(read->bytes);
  return std::move(read->report.warnings);
}

}  // namespace norvex
