#include "metadata/eps_resources.h"

#include <QByteArray>

#include <algorithm>

#include "base/blanks.h"
#include "metadata/eps_program.h"
#include "metadata/text_encoding.h"
#include "protocol/limits.h"

namespace norvex {
namespace {

/// The words of a comment. A text in parentheses is one of them, without these.
QStringList words(QByteArrayView line) {
  QStringList found;
  for (qsizetype at = 0; at < line.size();) {
    if (isCommentBlank(line[at])) {
      ++at;
      continue;
    }
    const bool text = line[at] == '(';
    const qsizetype from = text ? at + 1 : at;
    int depth = 1;
    for (at = from; at < line.size(); ++at) {
      if (text && line[at] == '(') ++depth;
      if (text ? (line[at] == ')' && --depth == 0) : isCommentBlank(line[at])) break;
    }
    const QByteArray word = line.sliced(from, at - from).toByteArray();
    found << decodeText(word, encoding::Utf8).value_or(QString::fromLatin1(word));
    if (text) ++at;
  }
  return found;
}

void add(QStringList& names, const QString& name) {
  if (!name.isEmpty() && names.size() < limits::maximumResourceNames && !names.contains(name)) names << name;
}

/// The comments of one section of a file.
class Reader {
 public:
  void read(QByteArrayView section, bool headerOnly);
  [[nodiscard]] bool continuesAtEnd() const { return atEnd_; }

  QStringList fonts, processColors, customColors;
  QList<EpsPlate> plates;

 private:
  enum class Topic { None, Fonts, Resources, ProcessColors, CustomColors };
  [[nodiscard]] static Topic topicOf(QByteArrayView keyword);
  void take(QByteArrayView line);
  void takeValues(QByteArrayView values);
  void takePlate(QByteArrayView keyword, QByteArrayView values);

  Topic topic_ = Topic::None;
  bool takesResource_ = false;  ///< the resources that are being listed are fonts
  bool atEnd_ = false;
};

Reader::Topic Reader::topicOf(QByteArrayView keyword) {
  for (const char* fonts : {"%%DocumentFonts", "%%DocumentNeededFonts", "%%DocumentSuppliedFonts"})
    if (keyword == fonts) return Topic::Fonts;
  for (const char* resources :
       {"%%DocumentResources", "%%DocumentNeededResources", "%%DocumentSuppliedResources"})
    if (keyword == resources) return Topic::Resources;
  if (keyword == "%%DocumentProcessColors") return Topic::ProcessColors;
  return keyword == "%%DocumentCustomColors" ? Topic::CustomColors : Topic::None;
}

void Reader::takeValues(QByteArrayView values) {
  const QStringList all = words(values);
  if (values.trimmed() == "(atend)") {
    atEnd_ = true;
    return;
  }
  for (const QString& word : all) {
    if (topic_ == Topic::Fonts) add(fonts, word);
    if (topic_ == Topic::ProcessColors) add(processColors, word);
    if (topic_ == Topic::CustomColors) add(customColors, word);
  }
  if (topic_ != Topic::Resources) return;
  // "font A B" and, on later lines, either more names or another kind of resource.
  static const QStringList kinds{"font", "procset", "file", "encoding", "form", "pattern", "category"};
  for (const QString& word : all) {
    if (kinds.contains(word))
      takesResource_ = word == u"font";
    else if (takesResource_)
      add(fonts, word);
  }
}

// "%%CyanPlate: file", "%%PlateFile: (Cyan) EPS Local file" or "%%PlateFile: (Cyan) EPS #offset length".
void Reader::takePlate(QByteArrayView keyword, QByteArrayView values) {
  if (plates.size() == limits::maximumResourceNames) return;
  const QStringList all = words(values);
  for (const char* ink : {"Cyan", "Magenta", "Yellow", "Black"})
    if (keyword == QByteArray("%%") + ink + "Plate" && !all.isEmpty())
      plates << EpsPlate{QString::fromLatin1(ink), all.join(u' ')};
  if (keyword != "%%PlateFile" || all.size() < 4) return;
  if (!all[2].startsWith(u'#')) {
    plates << EpsPlate{all[0], all.sliced(3).join(u' ')};
    return;
  }
  bool isOffset = false, isLength = false;
  const qint64 offset = all[2].sliced(1).toLongLong(&isOffset), length = all[3].toLongLong(&isLength);
  if (isOffset && isLength && offset > 0 && length > 0) plates << EpsPlate{all[0], {}, offset, length};
}

void Reader::take(QByteArrayView line) {
  if (line.isEmpty()) return;  // between CR and LF
  if (line.startsWith("%%+")) return takeValues(line.sliced(3));
  const qsizetype colon = line.indexOf(':');
  topic_ = colon < 0 ? Topic::None : topicOf(line.first(colon));
  takesResource_ = false;
  if (topic_ != Topic::None)
    takeValues(line.sliced(colon + 1));
  else if (colon >= 0)
    takePlate(line.first(colon), line.sliced(colon + 1));
}

void Reader::read(QByteArrayView section, bool headerOnly) {
  for (qsizetype at = 0; at < section.size();) {
    qsizetype end = at;
    while (end < section.size() && section[end] != '\n' && section[end] != '\r') ++end;
    const QByteArrayView line = section.sliced(at, end - at);
    if (headerOnly && (line.startsWith("%%EndComments") || (!line.isEmpty() && line[0] != '%'))) return;
    take(line);
    at = end + 1;
  }
}

}  // namespace

EpsResources epsResources(QByteArrayView source) {
  const QByteArray program = epsProgram(QByteArray::fromRawData(source.data(), source.size()));
  Reader reader;
  reader.read(program, true);
  const qsizetype trailer = reader.continuesAtEnd() ? program.lastIndexOf("%%Trailer") : -1;
  if (trailer >= 0)
    reader.read(QByteArrayView(program).sliced(trailer).first(
                    std::min(program.size() - trailer, limits::maximumTrailerBytes)),
                false);
  EpsResources found{reader.fonts, reader.processColors, reader.plates};
  for (const QString& ink : reader.customColors) add(found.colors, ink);
  return found;
}

QByteArrayView compositeOf(QByteArrayView program) {
  Reader reader;
  reader.read(program, true);
  qsizetype end = program.size();
  for (const EpsPlate& plate : reader.plates)
    if (plate.offset > 0 && plate.offset < end && program.sliced(plate.offset).startsWith("%!"))
      end = plate.offset;
  return program.first(end);
}

}  // namespace norvex
