// The lines of a PostScript program, and what each of them is part of as its structuring comments say.
#pragma once

#include <QByteArrayView>
#include <QList>

namespace norvex {

enum class LinePart {
  Header,    ///< up to %%EndComments, or to the first line that is no comment
  Program,   ///< of the document itself
  Preview,   ///< between %%BeginPreview and %%EndPreview
  Data,      ///< announced by %%BeginData or %%BeginBinary
  Embedded,  ///< between %%BeginDocument and %%EndDocument, or a second %! and its %%EOF with more of the
             ///< program behind: another document's own structure
};

enum class LineEnd { None, Lf, Cr, CrLf };

struct ProgramLine {
  QByteArrayView text;  ///< without its end; borrowed from the program
  qsizetype start = 0;  ///< of its first byte in the program
  int number = 0;       ///< from 1
  LinePart part = LinePart::Program;
  LineEnd end = LineEnd::None;
};

/// All of them, in their order. Data whose bytes are counted by their comment is one line, however many line
/// ends are among them. Thread-safe.
[[nodiscard]] QList<ProgramLine> programLines(QByteArrayView program);

/// A line of the drawing: neither a comment nor what transports leave behind.
[[nodiscard]] bool isDrawing(const ProgramLine& line);
/// True if the line begins with this comment: the keyword and then a colon, a blank or nothing.
[[nodiscard]] bool isComment(const ProgramLine& line, QByteArrayView keyword);
/// True for a comment that stands behind the header wherever the header ends: it begins or ends a section, a
/// page or the document. Data within the header are no section.
[[nodiscard]] bool endsHeader(const ProgramLine& line);
/// The lines up to the document's end, the last %%EOF; all of them without one. What some programs keep
/// behind it for themselves is no part of the document.
[[nodiscard]] QList<ProgramLine> documentLines(const QList<ProgramLine>& lines);
/// The text behind the keyword and its colon, without blanks around it. REQUIRES isComment().
[[nodiscard]] QByteArrayView commentValue(const ProgramLine& line, QByteArrayView keyword);

/// How many bytes are neither blanks nor what transports add at the end of a file.
[[nodiscard]] qsizetype tellingBytes(QByteArrayView bytes);

/// True if it is no text that people or programs wrote: image samples, packed data.
[[nodiscard]] bool looksLikeData(QByteArrayView line);

}  // namespace norvex
