// Small PDF documents written by hand, so that each test says in PDF's own words what it is about.
#pragma once

#include <QByteArray>
#include <QList>

namespace norvex::kit {

/// A PDF of the given objects: bodies[i] is object i + 1. Object 1 is the catalogue. `trailer` holds more
/// entries.
inline QByteArray madePdf(const QList<QByteArray>& bodies, const QByteArray& trailer = {}) {
  QByteArray pdf = "%PDF-1.7\n";
  QList<qsizetype> offsets;
  for (qsizetype i = 0; i < bodies.size(); ++i) {
    offsets << pdf.size();
    pdf += QByteArray::number(i + 1) + " 0 obj\n" + bodies[i] + "\nendobj\n";
  }
  const qsizetype table = pdf.size();
  pdf += "xref\n0 " + QByteArray::number(bodies.size() + 1) + "\n0000000000 65535 f \n";
  for (const qsizetype offset : offsets)
    pdf += QByteArray::number(offset).rightJustified(10, '0') + " 00000 n \n";
  return pdf + "trailer\n<< /Size " + QByteArray::number(bodies.size() + 1) + " /Root 1 0 R " + trailer +
         " >>\nstartxref\n" + QByteArray::number(table) + "\n%%EOF\n";
}

inline QByteArray stream(const QByteArray& data, const QByteArray& entries = {}) {
  return "<< /Length " + QByteArray::number(data.size()) + ' ' + entries + " >>\nstream\n" + data +
         "\nendstream";
}

/// One page: object 3 the page with `pageEntries`, object 4 its contents, `more` the objects from 5.
inline QByteArray onePage(const QByteArray& contents,
                          const QByteArray& pageEntries = "/MediaBox [0 0 200 100]",
                          const QList<QByteArray>& more = {}, const QByteArray& trailer = {}) {
  return madePdf(
      QList<QByteArray>{"<< /Type /Catalog /Pages 2 0 R >>", "<< /Type /Pages /Kids [3 0 R] /Count 1 >>",
                        "<< /Type /Page /Parent 2 0 R /Contents 4 0 R " + pageEntries + " >>",
                        stream(contents)} +
          more,
      trailer);
}

}  // namespace norvex::kit
