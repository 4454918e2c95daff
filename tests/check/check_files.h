// For each rule of a check a small file of ours that breaks it, beside one that breaks none.
#pragma once

#include <QByteArray>
#include <QList>
#include <QtEndian>

#include "worker/kit/made_pdf.h"

namespace norvex::checkfiles {

struct RuleFile {
  const char* rule;
  const char* extension;
  QByteArray broken, kept;
};

/// Four sorts of data that nothing can be said against, but that there is no preview.
inline const QByteArray kEps(
    "%!PS-Adobe-3.0 EPSF-3.0\n%%BoundingBox: 10 10 90 60\n%%HiResBoundingBox: 10 10 90 60\n"
    "%%LanguageLevel: 2\n%%DocumentData: Clean7Bit\n%%EndComments\n%%BeginProlog\n%%EndProlog\n"
    "0 0 0 1 setcmykcolor\n10 10 80 50 rectfill\nshowpage\n%%Trailer\n%%EOF\n");
inline const QByteArray kDraw("10 10 80 50 rectfill\n");

inline QByteArray changed(const QByteArray& from, const QByteArray& what, const QByteArray& into) {
  if (!from.contains(what)) qFatal("the file has no %s", what.constData());
  return QByteArray(from).replace(what, into);
}
inline QByteArray eps(const QByteArray& what, const QByteArray& into) {
  return changed(kEps, what, into);
}

inline QByteArray bigEndian(quint32 number) {
  QByteArray bytes(4, 0);
  qToBigEndian(number, bytes.data());
  return bytes;
}
inline QByteArray littleEndian(quint32 number) {
  QByteArray bytes(4, 0);
  qToLittleEndian(number, bytes.data());
  return bytes;
}

inline QByteArray macBinary(const QByteArray& data) {
  QByteArray header(128, 0);
  header[1] = 4;
  header.replace(2, 4, "name").replace(65, 4, "EPSF");
  header.replace(83, 4, bigEndian(quint32(data.size())));
  return header + data + QByteArray((128 - data.size() % 128) % 128, 0);
}

/// A resource fork that holds a picture of 120 by 90 points.
inline QByteArray pictureFork() {
  const QByteArray picture = QByteArray("\x00\x0A\x00\x0A\x00\x14\x00\x64\x00\x8C", 10);
  const QByteArray data = bigEndian(quint32(picture.size())) + picture;
  const QByteArray types = QByteArray(
      "\x00\x00"
      "PICT"
      "\x00\x00\x00\x0A",
      10);
  const QByteArray reference = QByteArray("\x01\x00\xFF\xFF\x00\x00\x00\x00\x00\x00\x00\x00", 12);
  const QByteArray map = QByteArray(24, 0) + QByteArray("\x00\x1C\x00\x32", 4) + types + reference;
  return bigEndian(16) + bigEndian(quint32(16 + data.size())) + bigEndian(quint32(data.size())) +
         bigEndian(quint32(map.size())) + data + map;
}

inline QByteArray macBinaryWithPicture(const QByteArray& data) {
  const QByteArray fork = pictureFork();
  return macBinary(data).replace(87, 4, bigEndian(quint32(fork.size()))) + fork;
}

inline QByteArray appleSingle(const QByteArray& data) {
  return QByteArray("\x00\x05\x16\x00\x00\x02\x00\x00", 8) + QByteArray(16, 0) + QByteArray("\x00\x01", 2) +
         bigEndian(1) + bigEndian(38) + bigEndian(quint32(data.size())) + data;
}

/// A binary EPS file of a program and a TIFF section, which the header says are elsewhere by so many bytes.
inline QByteArray dosEps(const QByteArray& program, const QByteArray& tiff, quint32 tiffMoved = 0,
                         quint32 tiffLonger = 0) {
  const quint32 start = 30, length = quint32(program.size());
  return QByteArray("\xC5\xD0\xD3\xC6", 4) + littleEndian(start) + littleEndian(length) + littleEndian(0) +
         littleEndian(0) + littleEndian(start + length - tiffMoved) +
         littleEndian(quint32(tiff.size()) + tiffLonger) + QByteArray("\xFF\xFF", 2) + program + tiff;
}

/// An interchange preview of 16 by 10 samples, white where `white` says so.
inline QByteArray withPreview(const QByteArray& program, bool leftHalf, int width = 16) {
  QByteArray preview = "%%BeginPreview: " + QByteArray::number(width) + " 10 1 10\n";
  for (int y = 0; y < 10; ++y) preview += leftHalf ? "%FF00\n" : "%00FF\n";
  return changed(program, "%%EndComments\n", "%%EndComments\n" + preview + "%%EndPreview\n");
}
inline const QByteArray kHalfEps =
    eps(kDraw, "10 10 40 50 rectfill 0 0 0 0.01 setcmykcolor 89 59 1 1 rectfill\n");

inline QList<RuleFile> epsFiles() {
  const QByteArray box = "%%BoundingBox: 10 10 90 60\n";
  const QByteArray hiRes = "%%HiResBoundingBox: 10 10 90 60\n";
  const auto boxed = [&](const QByteArray& numbers) {
    return changed(eps(box, "%%BoundingBox: " + numbers + '\n'), hiRes, "");
  };
  return {
      {"eps.wrapped", "eps", macBinary(kEps), kEps},
      {"eps.wrapped", "eps", macBinaryWithPicture(kEps), kEps},
      {"eps.wrapped", "eps", appleSingle(kEps), kEps},
      {"eps.dos-header.outside", "eps", dosEps(kEps, "TIFF", 0, 99), dosEps(kEps, "TIFF")},
      {"eps.dos-header.overlap", "eps", dosEps(kEps, "TIFF", 2), dosEps(kEps, "TIFF")},
      {"eps.bytes.before", "eps", '\x04' + kEps, kEps},
      {"eps.bytes.behind", "eps", kEps + "rubbish\n", kEps + "\x04\n"},
      {"eps.truncated", "eps", kEps.left(kEps.indexOf("showpage")), kEps},
      {"eps.header.missing", "eps", eps("%!PS-Adobe-3.0 EPSF-3.0\n", ""), kEps},
      {"eps.header.not-epsf", "eps", eps(" EPSF-3.0", ""), kEps},
      {"eps.header.version", "eps", eps("Adobe-3.0", "Adobe-7.3"),
       eps("Adobe-3.0 EPSF-3.0", "Adobe-2.0 EPSF-1.2")},
      {"eps.bounding-box.missing", "eps", eps(box, ""), kEps},
      {"eps.bounding-box.atend", "eps", boxed("(atend)"),
       changed(boxed("(atend)"), "%%Trailer\n", "%%Trailer\n" + box)},
      {"eps.bounding-box.malformed", "eps", boxed("10 10 ninety"), kEps},
      {"eps.bounding-box.empty", "eps", boxed("10 10 10 60"), kEps},
      {"eps.bounding-box.not-integer", "eps", boxed("10 10 90.5 60"), kEps},
      {"eps.bounding-box.disagrees", "eps", eps("Box: 10 10 90 60\n%%H", "Box: 10 10 60 60\n%%H"), kEps},
      {"eps.bounding-box.cuts-ink", "eps", boxed("10 10 50 60"), kEps},
      {"eps.bounding-box.loose", "eps", boxed("0 0 300 300"), boxed("0 0 120 80")},
      {"eps.ink.none", "eps", eps(kDraw, ""), kEps},
      {"eps.program.fails", "eps", eps(kDraw, "thisisnooperator\n"), kEps},
      {"eps.program.remark", "eps", eps("showpage\n", "showpage thisisnooperator\n"), kEps},
      {"eps.showpage.missing", "eps", eps("showpage\n", ""), kEps},
      {"eps.operator.forbidden", "eps", eps(kDraw, "initclip " + kDraw),
       eps(kDraw, "/initclip { } def initclip " + kDraw)},
      {"eps.operator.forbidden", "eps", eps(kDraw, "grestoreall " + kDraw),
       eps(kDraw, "(grestoreall) pop % grestoreall\n" + kDraw)},
      {"eps.language-level.undeclared", "eps", eps("%%LanguageLevel: 2\n", ""), kEps},
      {"eps.language-level.undeclared", "eps", eps(kDraw, "clipsave cliprestore " + kDraw), kEps},
      {"eps.comments.end-missing", "eps", eps("%%EndComments\n", ""), kEps},
      {"eps.comments.out-of-order", "eps", eps("%%BeginProlog", "%%BeginSetup\n%%EndSetup\n%%BeginProlog"),
       eps("%%EndProlog", "%%EndProlog\n%%BeginSetup\n%%EndSetup")},
      {"eps.comments.out-of-order", "eps", eps("%%EndComments\n", "1 pop\n%%EndComments\n"), kEps},
      {"eps.comments.unclosed", "eps", eps("%%EndProlog", "%%EndProlog\n%%BeginSetup"),
       eps("%%BeginProlog\n", "")},
      {"eps.lines.too-long", "eps", eps(kDraw, '%' + QByteArray(" word").repeated(60) + '\n' + kDraw),
       eps(kDraw, '%' + QByteArray(" word").repeated(50) + '\n' + kDraw)},
      {"eps.lines.mixed-ends", "eps", eps("showpage\n", "showpage\r\n"), changed(kEps, "\n", "\r")},
      {"eps.data.binary-undeclared", "eps", eps(kDraw, "(\x80) pop " + kDraw),
       eps(kDraw, "(\\200) pop " + kDraw)},
      {"eps.fonts.needed", "eps",
       eps("%%EndComments", "%%DocumentNeededResources: font Helvetica\n%%EndComments"),
       eps("%%EndComments", "%%DocumentNeededResources: procset abc 1 0\n%%EndComments")},
      {"eps.preview.missing", "eps", kEps, withPreview(kEps, true)},
      {"eps.preview.unreadable", "eps", dosEps(kEps, "II*no TIFF at all"), withPreview(kEps, true)},
      {"eps.preview.differs", "eps", withPreview(kHalfEps, false), withPreview(kHalfEps, true)},
      {"eps.preview.size", "eps", withPreview(kEps, true, 3), withPreview(kEps, true)},
  };
}

/// Fonts, images and colours of a page: object 5 and the next, as resources name them.
inline QByteArray page(const QByteArray& contents, const QByteArray& resources = {},
                       const QList<QByteArray>& more = {}, const QByteArray& trailer = {}) {
  return kit::onePage(contents, "/MediaBox [0 0 200 100] /Resources << " + resources + " >>", more, trailer);
}
inline QByteArray font(const QByteArray& entries,
                       const QByteArray& contents = "BT /F 20 Tf 10 10 Td (a) Tj ET") {
  return page(
      contents, "/Font << /F << /Type /Font " + entries + " >> >>",
      {kit::stream("not looked at"), "<< /Type /FontDescriptor /FontName /Abc /Flags 32 /FontFile 5 0 R >>"});
}
inline QByteArray state(const QByteArray& entries, const QByteArray& contents) {
  return page("/G gs " + contents, "/ExtGState << /G << " + entries + " >> >>");
}
inline QByteArray image(int side, const QByteArray& place) {
  const QByteArray size = QByteArray::number(side);
  return page("q " + place + " cm /I Do Q", "/XObject << /I 5 0 R >>",
              {kit::stream(QByteArray(side * side, '\x40'),
                           "/Type /XObject /Subtype /Image /Width " + size + " /Height " + size +
                               " /ColorSpace /DeviceGray /BitsPerComponent 8")});
}
inline const QByteArray kHelvetica("/Subtype /Type1 /BaseFont /Helvetica");
inline const QByteArray kSubset("/Subtype /Type1 /BaseFont /ABCDEF+Abc /FontDescriptor 6 0 R");

inline QList<RuleFile> pdfFiles() {
  const QByteArray plain = page("0 0 0 1 k 10 10 50 50 re f");
  const QByteArray spot =
      "/ColorSpace << /S [/Separation /Gold /DeviceCMYK << /FunctionType 2 /Domain [0 1] /C0 [0 0 0 0] /C1 "
      "[0 0 1 0] /N 1 >>] >>";
  const QByteArray calibrated = "/ColorSpace << /S [/CalRGB << /WhitePoint [0.95 1 1.09] >>] >>";
  const QByteArray intents = "/OutputIntents [<< /S /GTS_PDFX /OutputConditionIdentifier (FOGRA39) >>]";
  const QByteArray claim = page("", {}, {"<< /GTS_PDFXVersion (PDF/X-1a:2003) >>"}, "/Info 5 0 R");
  return {
      {"pdf.damaged", "pdf", plain.left(plain.lastIndexOf("startxref")), plain},
      {"fonts.missing", "pdf", font("/Subtype /Type1 /BaseFont /NoSuchFontAtAll"), plain},
      {"fonts.not-embedded", "pdf", font(kHelvetica), font(kSubset)},
      {"fonts.not-subset", "pdf", font("/Subtype /Type1 /BaseFont /Abc /FontDescriptor 6 0 R"),
       font(kSubset)},
      {"fonts.type3", "pdf",
       font("/Subtype /Type3 /FontBBox [0 0 1 1] /FontMatrix [1 0 0 1 0 0] /CharProcs << >> /Encoding << "
            "/Type /Encoding /Differences [] >> /FirstChar 0 /LastChar 0 /Widths [1]"),
       font(kSubset)},
      {"text.small", "pdf", font(kSubset, "BT /F 4 Tf 10 10 Td (a) Tj ET"),
       font(kSubset, "q .1 0 0 .1 0 0 cm BT /F 60 Tf 10 10 Td (a) Tj ET Q")},
      {"text.small", "pdf", font(kSubset, "BT /F 1 Tf 3 0 0 3 10 10 Tm (a) Tj ET"),
       font(kSubset, "BT 3 Tr /F 1 Tf 3 0 0 3 10 10 Tm (a) Tj ET")},
      {"colour.rgb", "pdf", page("1 0 0 rg 10 10 50 50 re f"), plain},
      {"colour.rgb-in-cmyk", "pdf", page("1 0 0 rg 10 10 5 5 re f 1 0 0 0 k 20 10 5 5 re f"),
       page("1 0 0 rg 1 0 0 0 k 20 10 5 5 re f")},
      {"colour.space", "pdf", page("/S cs 0.5 0.5 0.5 sc 10 10 50 50 re f", calibrated), plain},
      {"colour.spot", "pdf", page("/S cs 1 scn 10 10 50 50 re f", spot), plain},
      {"colour.total-ink", "pdf", page("1 1 1 .5 k 10 10 50 50 re f"), page("1 1 1 .5 k 10 10 50 50 re n")},
      {"colour.white-overprints", "pdf", state("/OP true", "0 0 0 0 k 10 10 50 50 re f"),
       state("/OP true /op false", "0 0 0 0 k 10 10 50 50 re f")},
      {"colour.black-knocks-out", "pdf",
       font(kSubset, "1 0 0 0 k 0 0 90 90 re f 0 0 0 1 k BT /F 8 Tf 10 10 Td (a) Tj ET"),
       font(kSubset, "1 0 0 0 k 0 0 90 90 re f 0 0 0 1 k BT /F 24 Tf 10 10 Td (a) Tj ET")},
      {"transparency.used", "pdf", state("/ca .5", "10 10 50 50 re f"), state("/ca 1", "10 10 50 50 re f")},
      {"transparency.used", "pdf", state("/BM /Multiply", "10 10 50 50 re f"),
       state("/BM /Multiply", "10 10 50 50 re n")},
      {"lines.thin", "pdf", page("q .1 0 0 .1 0 0 cm 1 w 10 10 m 500 500 l S Q"),
       page("q 10 0 0 10 0 0 cm .1 w 1 1 m 5 5 l S Q")},
      {"image.resolution", "pdf", image(20, "50 0 0 50 10 10"), image(20, "5 0 0 5 10 10")},
      {"page.outside", "pdf", page("150 10 100 20 re f"), page("q 0 0 200 100 re W n 150 10 100 20 re f Q")},
      {"page.width", "pdf", kit::onePage("", "/MediaBox [0 0 300 100]"), plain},
      {"claims.standard", "pdf", claim, plain},
      {"claims.output-intent", "pdf", claim, changed(claim, "/Pages 2 0 R", "/Pages 2 0 R " + intents)},
  };
}

inline QByteArray svg(const QByteArray& inside, const QByteArray& size = "width='40mm' height='20mm'") {
  return "<svg xmlns='http://www.w3.org/2000/svg' xmlns:xlink='http://www.w3.org/1999/xlink' " + size +
         " viewBox='0 0 200 100'>" + inside + "</svg>";
}

inline QList<RuleFile> svgFiles() {
  const QByteArray plain = svg("<rect width='50' height='50'/>");
  return {
      {"svg.reference.outside", "svg", svg("<image xlink:href='other.png' width='5' height='5'/>"), plain},
      {"svg.filter", "svg",
       svg("<filter id='f'><feGaussianBlur stdDeviation='1'/></filter><rect filter='url(#f)' width='50' "
           "height='50'/>"),
       plain},
      {"svg.size.no-unit", "svg", svg("", "width='200' height='100'"), plain},
      {"svg.script", "svg", svg("<script>1</script>"), plain},
      {"fonts.missing", "svg", svg("<text y='50' font-family='No Such Font At All'>a</text>"),
       svg("<text y='50' font-family='serif' font-size='20'>a</text>")},
      {"lines.thin", "svg", svg("<path d='M0 0L50 50' stroke='red' stroke-width='.01'/>"),
       svg("<path d='M0 0L50 50' stroke='red' stroke-width='9'/>")},
  };
}

}  // namespace norvex::checkfiles
