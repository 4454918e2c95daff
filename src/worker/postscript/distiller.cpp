#include "worker/postscript/distiller.h"

#include <QList>

#include <utility>

namespace norvex::engine {
namespace {

// Not quiet: what it says about fonts is handed on.
QList<QByteArray> distillerArguments() {
  return {"-dSAFER", "-dBATCH", "-dNOPAUSE", "-dNOPROMPT", "-sDEVICE=pdfwrite", "-sstdout=%stderr",
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
          "-dEmbedAllFonts=true", "-dSubsetFonts=true", "-dMaxSubsetPct=100", "-o", "-", "-_"};
}

}  // namespace

Result<std::shared_ptr<GhostscriptChild>> startDistiller(const EngineContext& context) {
  return GhostscriptChild::start(distillerArguments(), context.scratchFolder);
}

void warmUpGhostscript(EngineContext& context) {
  if (context.warmGhostscript) return;
  if (auto child = startDistiller(context)) context.warmGhostscript = std::move(*child);
}

}  // namespace norvex::engine
