#include "worker/postscript/distill.h"

#include <QElapsedTimer>
#include <QRegularExpression>

#include <optional>
#include <utility>

#include "protocol/limits.h"
#include "protocol/program_stop.h"
#include "worker/drawing/installed_fonts.h"
#include "worker/engine/distiller_arguments.h"
#include "worker/pdf/pdf_file.h"
#include "worker/pdf/pdf_numbers.h"
#include "worker/pdf/pdf_writing.h"
#include "worker/postscript/distiller.h"
#include "worker/postscript/ghostscript.h"
#include "worker/postscript/page_marks.h"
#include "worker/postscript/procedure_sets.h"
#include "worker/postscript/program_watch.h"
#include "worker/postscript/transfer_functions.h"

namespace norvex::engine {
namespace {

// What describes the document and does not draw cannot stop it: a pdfmark with wrong operands is left out,
// with what stood above the operands below its mark, and told once.
constexpr const char* kPdfmark =
    "/pdfmark {\n"
    "  { counttomark } stopped { count } { count exch sub 2 sub } ifelse\n"
    "  //userdict /norvexBelow 3 -1 roll put\n"
    "  { //systemdict /pdfmark get exec } stopped {\n"
    "    $error /newerror false put\n"
    "    { count //userdict /norvexBelow get le { exit } if pop } loop\n"
    "    //userdict /norvexTold known not {\n"
    "      //userdict /norvexTold true put\n"
    "      (%stderr) (w) file dup (norvex-left-out: pdfmark -\\n) writestring flushfile } if\n"
    "  } if } bind def\n";

// A systemdict to write to, between the user's names and the interpreter's own, which nobody may change. It
// holds the page as the prolog has it.
constexpr const char* kWritableSystem =
    "/systemdict //systemdict dup length 200 add dict copy def\n"
    "[ /setpagedevice /defaultmatrix /initmatrix /initgraphics /quit /pdfmark ]\n"
    "{ dup userdict exch get systemdict 3 1 roll put } forall\n"
    "systemdict begin userdict begin\n";

// A copy of the device that draws into memory has none, and the library falls over it.
constexpr const char* kOneCanvas = "/copydevice { } def\n";

struct Program {
  QByteArray text;
  QByteArray sets;            ///< procedure sets that it names and does not bring
  bool writesSystem = false;  ///< it redefines operators where the interpreter keeps them
};

// Runs before the document, whose program follows it in the same stream. The page is set once and for all:
// what a document may do to it (setpagedevice) does nothing, and the operators that go back to the page's own
// coordinates go back to the box's. The document runs inside `stopped`, so that its end is known: on an error
// one line with the count of finished pages and the error's name is written, and without a page the one that
// was begun is shown, from wherever the program had gone; otherwise a last showpage makes
// up for a missing one (a page too many is dropped later). Names are bound early: documents redefine
// operators. With `complete` the output is completed here and now, as a forked interpreter has it.
QByteArray prolog(const QRectF& box, const Program& program, const PageDevice& device, bool complete) {
  const QByteArray offset = decimal(-box.x(), 6) + ' ' + decimal(-box.y(), 6);
  const QByteArray size = decimal(box.width(), 6) + ' ' + decimal(box.height(), 6);
  const QByteArray fonts =
      device.device == InterpreterDevice::Pdf ? " << /NeverEmbed [ ] >> setdistillerparams" : "";
  return "%!\n0 vmreclaim" + fonts + "\n<< /PageSize [" + size + "] /ImagingBBox null " + device.parameters +
         " >> setpagedevice\n" + offset +
         " translate\n"
         "userdict begin\n"
         "/setpagedevice { pop } def\n"
         "/defaultmatrix { //systemdict /defaultmatrix get exec " +
         offset +
         " matrix translate exch dup concatmatrix } bind def\n"
         "/initmatrix { matrix defaultmatrix setmatrix } bind def\n"
         "/initgraphics { //systemdict /initgraphics get exec initmatrix } bind def\n"
         "/quit { stop } bind def\n" +
         kPdfmark + (device.device == InterpreterDevice::Canvas ? kOneCanvas : "") +
         "/norvexPage gstate def\n"
         "end\n" +
         (program.writesSystem ? kWritableSystem : "") + program.sets +
         "{ currentfile cvx stopped //userdict /systemdict undef $error /newerror get and\n"
         "  { { //userdict /norvexPage get setgstate } stopped pop\n"
         "    (%stderr) (w) file dup (norvex-error: ) writestring\n"
         "    dup currentpagedevice /PageCount get =string cvs writestring dup ( ) writestring\n"
         "    dup $error /errorname get =string cvs writestring dup ( ) writestring\n"
         "    dup $error /command get =string cvs writestring dup (\\n) writestring flushfile\n"
         "    clear currentpagedevice /PageCount get 0 eq\n"
         "    { { //systemdict /showpage get exec } stopped pop } if }\n"
         "  { //systemdict /showpage get exec } ifelse\n" +
         (complete ? completeOutput() : QByteArray()) + "  //systemdict /quit get exec } bind exec\n";
}

struct ProgramError {
  int finishedPages = 0;
  QString name;
  QString command;
};

std::optional<ProgramError> programError(const QByteArray& messages) {
  static const QRegularExpression line(QStringLiteral("norvex-error: (\\d+) (\\S+) ([^\\n]*)"));
  const QRegularExpressionMatch match = line.match(QString::fromLatin1(messages));
  if (!match.hasMatch()) return std::nullopt;
  return ProgramError{match.captured(1).toInt(), match.captured(2), match.captured(3).simplified().left(80)};
}

Error sentence(const ProgramError& error) {
  if (error.name == u"VMerror")
    return {ErrorKind::Limit, QStringLiteral("the PostScript needs more memory than it was granted")};
  const QString where = error.command.isEmpty() ? QString() : QStringLiteral(" in %1").arg(error.command);
  return {ErrorKind::NotParsable, kProgramStopped + error.name + where};
}

// For errors outside the document's own program: gs's words for them.
Error unexplained(const GhostscriptOutput& run) {
  static const QRegularExpression line(QStringLiteral("Error: /?([^\\n]+)"));
  const QRegularExpressionMatch match = line.match(QString::fromLatin1(run.messages));
  const QString words =
      match.hasMatch() ? match.captured(1).simplified().left(120) : QStringLiteral("it draws no page");
  if (words.contains(u"VMerror"))
    return {ErrorKind::Limit, QStringLiteral("the PostScript needs more memory than it was granted")};
  return {ErrorKind::NotParsable, kProgramStopped + words};
}

// The fonts that were neither in the document nor on this machine.
QStringList substitutions(const QByteArray& messages) {
  static const QRegularExpression line(
      QStringLiteral("Substituting font (\\S{1,100}) for (\\S{1,100})\\.\\s"));
  QStringList warnings;
  for (auto match = line.globalMatch(QString::fromLatin1(messages)); match.hasNext();) {
    const QRegularExpressionMatch font = match.next();
    const QString warning = missingFontSentence(font.captured(2), font.captured(1));
    if (!warnings.contains(warning)) warnings << warning;
    if (warnings.size() == limits::maximumSubstitutions) break;
  }
  return warnings;
}

/// What every output of the device begins with.
QByteArray beginOf(InterpreterDevice device) {
  return device == InterpreterDevice::Plates ? QByteArrayLiteral("8BPS") : QByteArrayLiteral("%PDF-");
}

Error noPage() {
  return {ErrorKind::NotParsable, QStringLiteral("the PostScript draws no page")};
}

// gs rounds the page to what its device can set and may have written a blank page behind the picture's.
// `unlessBlank`: a page without a mark is none.
Result<QByteArray> firstPage(const QByteArray& pdf, const QRectF& box, bool unlessBlank) {
  Result<std::unique_ptr<PdfFile>> file = PdfFile::open(pdf);
  if (!file) return file.error();
  return guarded([&]() -> Result<QByteArray> {
    QPDFObjectHandle page = (*file)->page(0);
    if (unlessBlank && !hasMarks(page)) return noPage();
    for (const char* key : {"/CropBox", "/TrimBox", "/BleedBox", "/ArtBox", "/Rotate"}) page.removeKey(key);
    page.replaceKey("/MediaBox", boxAtOrigin(box.width(), box.height()));
    keepOnlyPage((*file)->qpdf(), page);
    return writePdf((*file)->qpdf());
  });
}

/// Colours that go through transfer functions are written as what comes of them. Others would be rounded.
constexpr const char* kAppliedTransfer = "/TransferFunctionInfo /Apply";

/// Puts what a second run makes, with the transfer functions applied, in place of `drawn`, which took
/// `seconds`. Where there is no time for another run like that, or it fails, `drawn` stays as it is. Fails
/// with Cancelled alone.
Result<void> applyTransferFunctions(const QByteArray& postScript, const QRectF& box, int seconds,
                                    EngineContext& context, DrawnProgram& drawn) {
  const int left = context.limits.seconds - seconds;
  if (left <= seconds) return {};
  const int granted = std::exchange(context.limits.seconds, left);
  Result<DrawnProgram> applied = drawProgram(postScript, box, {.parameters = kAppliedTransfer}, context);
  context.limits.seconds = granted;
  if (!applied) return applied.error().kind == ErrorKind::Cancelled ? applied.error() : Result<void>();
  if (haveSameTints(drawn.output, applied->output)) drawn = std::move(*applied);
  return {};
}

}  // namespace

Result<DrawnProgram> drawProgram(const QByteArray& postScript, const QRectF& box, const PageDevice& device,
                                 EngineContext& context, ProgramWatch* watch) {
  Program program{postScript, procedureSetsFor(postScript), false};
  const auto input = [&](bool forked) { return QList{prolog(box, program, device, forked), program.text}; };
  ProgramLook look;
  if (watch != nullptr) {
    look = [watch](const EngineContext& now) { return watch->look(now); };
    watch->setProgram([&, canvas = PageDevice{InterpreterDevice::Canvas, watch->deviceParameters()}] {
      return QList{prolog(box, program, canvas, true), program.text};
    });
  }
  Result<GhostscriptOutput> run = runGhostscript(device.device, input, context, look);
  if (!run) return run.error();
  std::optional<ProgramError> stopped = programError(run->messages);
  if (stopped && stopped->name == u"invalidaccess" && postScript.contains("systemdict")) {
    program.writesSystem = true;
    run = runGhostscript(device.device, input, context, look);
    if (!run) return run.error();
    stopped = programError(run->messages);
  }
  const bool unfinished = stopped && stopped->finishedPages == 0;
  if (unfinished && sentence(*stopped).kind != ErrorKind::NotParsable) return sentence(*stopped);
  if (!unfinished && (run->exitStatus != 0 || !run->output.startsWith(beginOf(device.device))))
    return unexplained(*run);
  DrawnProgram drawn{std::move(run->output), substitutions(run->messages) + leftOut(run->messages), {}};
  if (unfinished)
    drawn.stoppedBy = sentence(*stopped).message;
  else if (stopped)
    drawn.warnings << QStringLiteral("what follows the picture in the file was left out");
  return drawn;
}

Result<Distilled> distill(const QByteArray& postScript, const QRectF& box, EngineContext& context,
                          ProgramWatch* watch) {
  QElapsedTimer clock;
  clock.start();
  Result<DrawnProgram> drawn = drawProgram(postScript, box, {}, context, watch);
  if (!drawn) return drawn.error();
  const int seconds = int(clock.elapsed() / 1000) + 1;
  if (hasTransferFunctions(drawn->output))
    if (const auto done = applyTransferFunctions(postScript, box, seconds, context, *drawn); !done)
      return done.error();
  const bool unfinished = !drawn->stoppedBy.isEmpty();
  Result<QByteArray> pdf = firstPage(drawn->output, box, unfinished);
  if (!pdf) return unfinished ? Error{ErrorKind::NotParsable, drawn->stoppedBy} : noPage();
  return Distilled{std::move(*pdf), std::move(drawn->warnings), std::move(drawn->stoppedBy)};
}

}  // namespace norvex::engine
