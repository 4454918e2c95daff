#include "picture_check/picture_check.h"

#include <QHash>
#include <QImage>
#include <QPainter>

#include <algorithm>
#include <utility>

#include "base/time_limit.h"
#include "check/eps_box_rules.h"
#include "check/eps_file_rules.h"
#include "check/eps_operator_rules.h"
#include "check/eps_preview_rules.h"
#include "check/eps_structure_rules.h"
#include "check/file_wrapping.h"
#include "check/page_rules.h"
#include "metadata/eps_bounding_box.h"
#include "metadata/eps_program.h"
#include "picture/bitmap_image.h"
#include "picture/chosen_document.h"
#include "picture/embedded_preview.h"
#include "picture/open_picture.h"
#include "protocol/limits.h"
#include "protocol/shared_errors.h"
#include "types/type_identification.h"

namespace norvex {
namespace {

/// Pixels of the longer side of the drawing that a preview is compared with.
constexpr double kComparedPixels = 256;
/// Half of a tenth of a point.
constexpr double kSharpInkDpi = 1440;

/// comparedSide × comparedSide grey samples over white.
QByteArray greySamples(const QImage& image) {
  if (image.isNull()) return {};
  QImage white(image.size(), QImage::Format_RGB32);
  white.fill(Qt::white);
  QPainter(&white).drawImage(0, 0, image);
  const QImage small =
      white.scaled(comparedSide, comparedSide, Qt::IgnoreAspectRatio, Qt::SmoothTransformation)
          .convertToFormat(QImage::Format_Grayscale8);
  QByteArray samples;
  for (int y = 0; y < small.height(); ++y)
    samples.append(reinterpret_cast<const char*>(small.constScanLine(y)), small.width());
  return samples;
}

/// Whether something is to be told of the ink wherever its edges are within their accuracy.
bool maySayMore(const DrawnInk& drawn, const QRectF& box) {
  if (!drawn.ink || isEndless(drawn)) return false;
  const double off = drawn.accuracy;
  return !epsInkFindings(box, drawn.ink).isEmpty() ||
         !epsInkFindings(box, drawn.ink->adjusted(off, off, -off, -off)).isEmpty();
}

class Check {
 public:
  Check(PictureService& service, const CheckRequest& request, const CancelToken& cancel)
      : service_(service), request_(request), cancel_(cancel) {}

  CheckedPicture run() {
    const QByteArray inner = withoutWrapping(request_.bytes);
    const Result<PictureKind> kind =
        pictureKindOf(inner, identifyType(inner, request_.fileName).identifier());
    if (!kind)
      result_.error = kind.error();
    else if (*kind == PictureKind::Eps)
      checkEps(inner);
    else
      checkProtected(inner, *kind);
    result_.findings = judged(result_.findings, request_.profile);
    return std::move(result_);
  }

 private:
  void add(const Findings& findings) { result_.findings += findings; }

  /// A document is checked as its reader sees it, who knows the password.
  void checkProtected(const QByteArray& inner, PictureKind kind) {
    PictureSource source;
    source.bytes = inner;
    source.typeIdentifier = identifyType(inner, request_.fileName).identifier();
    const Result<PictureBytes> read =
        documentAsChosen(service_, source, {request_.password, {}}, request_.limits, cancel_);
    if (!read) {
      result_.error = read.error();
      return;
    }
    opened_ = read->bytes != inner;
    checkPages(*service_.open(read->bytes, kind, request_.limits), kind);
  }

  void checkEps(const QByteArray& inner) {
    add(epsFileFindings(request_.bytes));
    const QByteArray program = epsProgram(inner);
    const QList<ProgramLine> lines = programLines(program);
    add(epsStructureFindings(lines));
    add(epsBoxFindings(program, lines));
    add(epsOperatorFindings(lines));
    add(epsFontFindings(lines));
    const auto preview = embeddedPreview(service_, inner, cancel_);
    const std::optional<QRectF> box = epsPictureBox(epsBoundingBoxes(inner));
    add(epsPreviewFindings(preview, box));
    // Without a box nothing is drawn: the missing one is told already.
    if (box) checkDrawing(*service_.open(inner, PictureKind::Eps, request_.limits), *box, preview);
  }

  void checkDrawing(PictureProcess& process, const QRectF& box,
                    const Result<std::optional<NSBitmapImageRep>>& preview) {
    if (const auto page = contentsOf(process, 0)) {
      add(pageFindings(*page, PictureKind::Eps, request_.profile.limits));
      checkInk(process, box);
      if (!result_.error && preview && *preview) comparePreview(process, box, **preview);
    } else if (result_.error && result_.error->kind == ErrorKind::NotParsable) {
      add({finding(rule("eps.program.fails"), result_.error->message)});
      result_.error.reset();
    }
  }

  void checkInk(PictureProcess& process, const QRectF& box) {
    Result<DrawnInk> drawn = inkOfEps(process, box, InkEdges::Coarse, cancel_);
    // Sharp edges cost as much as all the rest: they are looked for where something is to be told of them.
    if (drawn && maySayMore(*drawn, box)) drawn = inkOfEps(process, box, InkEdges::Sharp, cancel_);
    if (!drawn)
      result_.error = drawn.error();
    else if (!isEndless(*drawn))
      add(epsInkFindings(box, drawn->ink));
  }

  void comparePreview(PictureProcess& process, const QRectF& box, const NSBitmapImageRep& preview) {
    const double scale = kComparedPixels / std::max(box.width(), box.height());
    RenderRequest whole;
    whole.pixelSize = {std::max(1, qRound(box.width() * scale)), std::max(1, qRound(box.height() * scale))};
    whole.pictureToDevice = {scale, 0, 0, -scale, 0, box.height() * scale};
    whole.purpose = RenderPurpose::Preview;
    const Result<QImage> drawn = process.render(whole, cancel_);
    const QImage shown = toImage(preview);
    if (drawn && !shown.isNull()) add(epsPreviewDifference(greySamples(shown), greySamples(*drawn)));
  }

  /// Nothing: result_.error says why.
  std::optional<PageContents> contentsOf(PictureProcess& process, int page) {
    const Result<PictureBytes> answer = process.examine({Examination::Contents, page}, cancel_);
    if (!answer) {
      result_.error = answer.error();
      return std::nullopt;
    }
    Result<PageContents> contents = decodePageContents(answer->bytes);
    if (contents) contents->encrypted = contents->encrypted || opened_;
    if (contents) return *contents;
    result_.error = contents.error();
    return std::nullopt;
  }

  void checkPages(PictureProcess& process, PictureKind kind) {
    const Result<PictureFacts> facts = process.facts(cancel_);
    if (!facts) {
      result_.error = facts.error();
      return;
    }
    bool isDamaged = facts->warnings.contains(damagedFile());
    const int pages = std::min(facts->pageCount, limits::maximumExaminedPages);
    for (int page = 0; page < pages && !result_.error; ++page) {
      const auto contents = contentsOf(process, page);
      if (!contents) break;
      isDamaged = isDamaged || contents->remarks.contains(damagedFile());
      addOfPage(pageFindings(*contents, kind, request_.profile.limits), facts->pageCount > 1 ? page + 1 : 0);
    }
    if (isDamaged) add({finding(rule("pdf.damaged"), damagedFile())});
    if (facts->pageCount > pages)
      add({finding(rule("page.unread"),
                   QStringLiteral("only the first %1 pages were looked at").arg(pages))});
  }

  /// The same of several pages is told of the first. `page`: 0 where there is only one.
  void addOfPage(Findings findings, int page) {
    for (Finding& one : findings) {
      const std::pair key(one.rule, one.sentence);
      if (const auto told = told_.constFind(key); told != told_.constEnd() && *told != page) continue;
      told_.insert(key, page);
      one.page = page;
      result_.findings << one;
    }
  }

  PictureService& service_;
  const CheckRequest& request_;
  const CancelToken cancel_;
  bool opened_ = false;  ///< by a password
  CheckedPicture result_;
  QHash<std::pair<const RuleRow*, QString>, int> told_;  ///< and on which page
};

}  // namespace

CheckedPicture checkPicture(PictureService& service, const CheckRequest& request, const CancelToken& cancel) {
  const TimeLimit time(std::chrono::seconds(request.limits.seconds), cancel);
  CheckedPicture checked = Check(service, request, time.token()).run();
  if (checked.error) checked.error = time.explained(*checked.error);
  return checked;
}

bool isEndless(const DrawnInk& drawn) {
  return drawn.ink && drawn.ink->adjusted(-1, -1, 1, 1).contains(drawn.area);
}

Result<DrawnInk> inkOfEps(PictureProcess& process, const QRectF& box, InkEdges edges,
                          const CancelToken& cancel) {
  ExamineRequest request{Examination::Drawn, 0};
  if (edges == InkEdges::Sharp) request.dpi = kSharpInkDpi;
  const Result<PictureBytes> answer = process.examine(request, cancel);
  if (!answer) return answer.error();
  Result<DrawnInk> drawn = decodeDrawnInk(answer->bytes);
  if (!drawn) return drawn.error();
  for (std::optional<QRectF>* rect : {&drawn->ink, &drawn->painted})
    if (*rect) (*rect)->translate(box.topLeft());
  drawn->area.translate(box.topLeft());
  return drawn;
}

}  // namespace norvex
