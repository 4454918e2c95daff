// Illustrator artwork as a file that names its procedure sets and does not bring them, and PostScript beside
// it.
#pragma once

#include <QByteArray>

namespace norvex::kit {

inline QByteArray withBox(const QByteArray& program) {
  return "%!PS-Adobe-3.0\n%%BoundingBox: 0 0 100 80\n%%EndComments\n" + program;
}

inline QByteArray artwork(const QByteArray& body, const QByteArray& setup = {}) {
  return withBox(
      "%%BeginProlog\n%%IncludeResource: procset Adobe_packedarray 2.0 0\n"
      "Adobe_packedarray /initialize get exec\n%%IncludeResource: procset Adobe_Illustrator_AI5 1.0 0\n"
      "%%EndProlog\n%%BeginSetup\nAdobe_Illustrator_AI5 /initialize get exec\n" +
      setup + "\n%%EndSetup\n%AI5_BeginLayer\n1 1 1 1 0 0 0 79 128 255 Lb\n(Layer 1) Ln\n0 A\n" + body +
      "\nLB\n%AI5_EndLayer--\n%%PageTrailer\ngsave annotatepage grestore showpage\n%%Trailer\n"
      "Adobe_Illustrator_AI5 /terminate get exec\nAdobe_packedarray /terminate get exec\n%%EOF\n");
}

}  // namespace norvex::kit
