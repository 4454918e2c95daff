// What programs that we did not write say to our files, and how they draw them.
#pragma once

#include <QFile>
#include <QImage>
#include <QString>
#include <QStringList>
#include <QTemporaryDir>

#include <cmath>
#include <cstdlib>

#include "base/latin1_text.h"
#include "kit/program.h"
#include "types/picture_format.h"

namespace norvex::outside {

using kit::Ran;

/// As kit::run(), for a program that may be given a hostile file: no file of more than a gibibyte, and what
/// it leaves behind when it is killed goes.
inline Ran run(const QString& program, const QStringList& arguments, const QByteArray& input = {},
               int seconds = 120) {
  const QTemporaryDir scratch;
  return kit::run("prlimit", QStringList{"--fsize=1073741824", program} + arguments, input, seconds,
                  {"TMPDIR=" + scratch.path()});
}

/// Empty when the program ended well; otherwise what it said, as one line.
inline QString complaintOf(const QString& program, const QStringList& arguments, int seconds = 60,
                           const QList<int>& good = {0}) {
  const Ran ran = run(program, arguments, {}, seconds);
  if (!ran.crashed && good.contains(ran.exitCode)) return {};
  const QByteArray said = (ran.err + ' ' + ran.out).simplified().right(300);
  return QStringLiteral("%1 (%2): %3").arg(program).arg(ran.exitCode).arg(QString::fromUtf8(said));
}

inline QString firstOf(const QStringList& complaints) {
  for (const QString& complaint : complaints)
    if (!complaint.isEmpty()) return complaint;
  return {};
}

/// Whether Ghostscript runs the PostScript to its end without an error.
inline QString complaintAboutPostScript(const QString& path, int seconds = 60) {
  const Ran ran = run("gs", {"-dSAFER", "-dBATCH", "-dNOPAUSE", "-q", "-dEPSCrop", "-sDEVICE=nullpage", path},
                      {}, seconds);
  const bool error = ran.out.contains("Error:") || ran.err.contains("Error:");
  if (!ran.crashed && ran.exitCode == 0 && !error) return {};
  return QStringLiteral("gs (%1): %2")
      .arg(ran.exitCode)
      .arg(QString::fromUtf8((ran.out + ran.err).simplified().left(300)));
}

/// The preview of a binary EPS as a TIFF reader sees it, and the PostScript as Ghostscript does.
inline QString complaintAboutBinaryEps(const QString& path, int seconds = 60) {
  const QTemporaryDir folder;
  const QString tiff = folder.filePath("preview.tiff");
  const QString eps = folder.filePath("program.eps");
  return firstOf(
      {complaintOf("epstool",
                   {"--quiet", "--ignore-warnings", "--ignore-errors", "--extract-preview", path, tiff},
                   seconds),
       complaintOf("tiffinfo", {tiff}, seconds),
       complaintOf("epstool",
                   {"--quiet", "--ignore-warnings", "--ignore-errors", "--extract-postscript", path, eps},
                   seconds),
       complaintAboutPostScript(eps, seconds)});
}

inline QString complaintAboutSvgz(const QString& path, int seconds = 60) {
  const Ran plain = run(
      "gzip", {"-dc"},
      [&] {
        QFile file(path);
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
      }(),
      seconds);
  if (plain.exitCode != 0) return QStringLiteral("gzip: ") + QString::fromUtf8(plain.err);
  const Ran xml = run("xmllint", {"--noout", "--nonet", "--huge", "-"}, plain.out, seconds);
  if (xml.exitCode != 0) return QStringLiteral("xmllint: ") + QString::fromUtf8(xml.err.left(300));
  return complaintOf("rsvg-convert", {"--unlimited", path}, seconds);
}

/// As --format names them.
inline QStringList writtenFormats() {
  QStringList names;
  for (const FormatRow& row : formatTable)
    if (isWritten(row)) names << latin1(row.name);
  return names;
}

/// Empty when every program that knows the format accepts the file. `format`: as --format names them.
inline QString complaintAbout(const QString& path, const QString& format, int seconds = 60) {
  if (format == "eps" || format == "epsi") return complaintAboutPostScript(path, seconds);
  if (format == "eps-preview") return complaintAboutBinaryEps(path, seconds);
  if (format == "pdf")
    return firstOf(
        {complaintOf("qpdf", {"--check", path}, seconds), complaintOf("pdfinfo", {path}, seconds)});
  if (format == "svg")
    return firstOf({complaintOf("xmllint", {"--noout", "--nonet", "--huge", path}, seconds),
                    complaintOf("rsvg-convert", {"--unlimited", path}, seconds)});
  if (format == "svgz") return complaintAboutSvgz(path, seconds);
  const QString identified = complaintOf("identify", {"-regard-warnings", path}, seconds);
  if (format == "tiff") return firstOf({complaintOf("tiffinfo", {path}, seconds), identified});
  if (format == "png") return firstOf({complaintOf("pngcheck", {"-q", path}, seconds), identified});
  if (format == "gif") return firstOf({complaintOf("giftext", {path}, seconds), identified});
  if (format == "webp") return firstOf({complaintOf("webpinfo", {"-quiet", path}, seconds), identified});
  return identified;
}

/// The picture over white, of so many pixels an inch (a raster file has its own), drawn by Ghostscript,
/// Poppler, librsvg or ImageMagick. Null on failure.
inline QImage drawnOutside(const QString& path, const QString& format, int seconds = 60, int dpi = 72) {
  const QTemporaryDir folder;
  const QString png = folder.filePath("drawn.png");
  if (format == "eps" || format == "epsi") {
    run("gs",
        {"-dSAFER", "-dBATCH", "-dNOPAUSE", "-q", "-dEPSCrop", "-sDEVICE=png16m", QString("-r%1").arg(dpi),
         "-dTextAlphaBits=4", "-dGraphicsAlphaBits=4", "-o", png, path},
        {}, seconds);
  } else if (format == "eps-preview") {
    const QString eps = folder.filePath("program.eps");
    run("epstool", {"--quiet", "--ignore-warnings", "--ignore-errors", "--extract-postscript", path, eps}, {},
        seconds);
    return drawnOutside(eps, "eps", seconds, dpi);
  } else if (format == "pdf") {
    run("pdftocairo", {"-png", "-r", QString::number(dpi), "-singlefile", "-cropbox", path, png.chopped(4)},
        {}, seconds);
  } else if (format == "svg" || format == "svgz") {
    const QString zoom = QString("--zoom=%1").arg(dpi / 96.0);
    run("rsvg-convert", {"--unlimited", "--background-color=white", zoom, "-o", png, path}, {}, seconds);
  } else {
    run("convert", {path, "-background", "white", "-alpha", "remove", "png24:" + png}, {}, seconds);
  }
  const QImage drawn(png);
  return drawn.convertToFormat(QImage::Format_RGB32);
}

/// Mean difference of the samples, 0 … 1, after the smaller picture was brought to the other's size; 1 when a
/// picture is missing or the sizes differ by more than two pixels and a hundredth.
inline double difference(QImage one, QImage other) {
  if (one.isNull() || other.isNull()) return 1;
  const auto near = [](int a, int b) { return std::abs(a - b) <= 2 + std::max(a, b) / 100; };
  if (!near(one.width(), other.width()) || !near(one.height(), other.height())) return 1;
  if (one.size() != other.size())
    other = other.scaled(one.size(), Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
  other = other.convertToFormat(QImage::Format_RGB32);
  double sum = 0;
  for (int y = 0; y < one.height(); ++y) {
    const auto* a = reinterpret_cast<const QRgb*>(one.constScanLine(y));
    const auto* b = reinterpret_cast<const QRgb*>(other.constScanLine(y));
    for (int x = 0; x < one.width(); ++x)
      sum += std::abs(qRed(a[x]) - qRed(b[x])) + std::abs(qGreen(a[x]) - qGreen(b[x])) +
             std::abs(qBlue(a[x]) - qBlue(b[x]));
  }
  return sum / (3.0 * 255 * one.width() * one.height());
}

}  // namespace norvex::outside
