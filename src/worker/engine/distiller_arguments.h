// How Ghostscript is set up to turn PostScript into PDF, or pages into plates, whether it is started for a
// document or waits for it.
#pragma once

#include <array>

#include "protocol/interpreter_request.h"

namespace norvex::engine {

/// Options of gs besides the device. Not quiet: what it says about fonts is handed on.
inline constexpr std::array distillerOptions{
    "-dSAFER", "-dBATCH", "-dNOPAUSE", "-dNOPROMPT", "-sstdout=%stderr",
    // No memory is reclaimed before the document runs: a tenth of the start. The prolog lets it begin.
    "-dNOGC",
    // Nothing that the comments say may turn the page or name the document.
    "-dParseDSCComments=false", "-dParseDSCCommentsForDocInfo=false", "-dPreserveEPSInfo=false",
    "-dAutoRotatePages=/None", "-dCompatibilityLevel=1.7",
    // Colours and images as they are in the document.
    "-sColorConversionStrategy=LeaveColorUnchanged", "-dDownsampleColorImages=false",
    "-dDownsampleGrayImages=false", "-dDownsampleMonoImages=false", "-dAutoFilterColorImages=false",
    "-dAutoFilterGrayImages=false", "-dColorImageFilter=/FlateEncode", "-dGrayImageFilter=/FlateEncode",
    "-dPassThroughJPEGImages=true", "-dPreserveOverprintSettings=true", "-dPreserveSeparation=true",
    "-dPreserveDeviceN=true", "-dUCRandBGInfo=/Preserve", "-dTransferFunctionInfo=/Preserve",
    "-dEmbedAllFonts=true", "-dSubsetFonts=true", "-dMaxSubsetPct=100",
    // Of a PDF, which is only ever separated: the page that is shown.
    "-dUseCropBox"};

/// The device that writes what is wanted of the pages.
constexpr const char* deviceName(InterpreterDevice device) {
  switch (device) {
    case InterpreterDevice::Plates:
      return "psdcmyk";
    case InterpreterDevice::Canvas:
      return "display";
    default:
      return "pdfwrite";
  }
}
/// Behind all others: the result goes to standard output, the program comes from standard input.
inline constexpr std::array distillerStreams{"-o", "-", "-_"};

/// Another name of the same output. A program that makes it the device's completes what it has drawn so far,
/// and a waiting interpreter then ends at once.
inline constexpr const char* distilledOutput = "%stdout";

/// The whole environment of the interpreter besides TMPDIR.
inline constexpr std::array distillerEnvironment{"LC_ALL=C", "PATH=/usr/bin:/bin"};

}  // namespace norvex::engine
