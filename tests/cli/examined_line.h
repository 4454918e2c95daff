// A command line whose picture answers what it is examined for.
#pragma once

#include <QMap>

#include "cli/cli_files.h"
#include "protocol/page_contents.h"

namespace norvex::testdata {

/// What is drawn is the box of checkfiles::kEps, and nothing can be said against the page.
class ExaminedLine : public CommandLine {
 public:
  ExaminedLine() {
    drawn = {QRectF(0, 0, 80, 50), QRectF(0, 0, 80, 50), QRectF(-1000, -1000, 5000, 5000), 0.05};
    page.size = QSizeF(80, 50);
    setPages(1);
  }

  void setPages(int count) {
    MemoryPicture picture;
    picture.facts.pageCount = count;
    picture.facts.pageBounds = QList<QRectF>(count, QRectF(0, 0, 200, 100));
    picture.facts.warnings = warnings;
    picture.examine = [this](const ExamineRequest& request) {
      asked << request;
      return request.what == Examination::Drawn
                 ? encodeDrawnInk(drawn)
                 : encodePageContents(contentsOfPage.value(request.page, page));
    };
    picture.paint = [this](const RenderRequest& request) {
      painted << request;
      return paint ? paint(request) : testPattern(request, QSizeF(80, 50));
    };
    service.setPicture(picture);
  }

  [[nodiscard]] QList<double> dpiOfDrawn() const {
    QList<double> dpi;
    for (const ExamineRequest& each : asked)
      if (each.what == Examination::Drawn) dpi << each.dpi;
    return dpi;
  }

  DrawnInk drawn;
  PageContents page;
  QMap<int, PageContents> contentsOfPage;
  QStringList warnings;
  std::function<QImage(const RenderRequest&)> paint;
  QList<ExamineRequest> asked;
  QList<RenderRequest> painted;
};

}  // namespace norvex::testdata
