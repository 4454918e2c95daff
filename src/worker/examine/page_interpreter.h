// Carries out the contents of a page as far as it takes to know what is painted, how and where; nothing is
// drawn.
#pragma once

#include <QRectF>

#include <qpdf/QPDF.hh>
#include <qpdf/QPDFObjectHandle.hh>

#include <map>
#include <set>
#include <string>
#include <vector>

#include "base/cancel_token.h"
#include "worker/examine/graphics_state.h"
#include "worker/examine/page_findings.h"

namespace norvex::engine {

/// One page. Single-threaded. Members may throw what qpdf throws.
class PageInterpreter {
 public:
  /// `toPicture`: the page's user space → picture coordinates; `clip`: what is looked at, picture
  /// coordinates.
  PageInterpreter(QPDF& qpdf, PageFindings& findings, const AffineTransform& toPicture, const QRectF& clip,
                  const CancelToken& cancel);

  /// False: a limit was reached before the end, or the work was cancelled.
  [[nodiscard]] bool run(QPDFObjectHandle contents, QPDFObjectHandle resources);

 private:
  class Callbacks;
  using Operands = std::vector<QPDFObjectHandle>;
  using Operator = void (PageInterpreter::*)(const Operands&);
  static const std::map<std::string, Operator>& operators();

  void runContents(const std::string& bytes, QPDFObjectHandle resources);
  void runForm(QPDFObjectHandle form, const AffineTransform& matrix);
  bool carryOut(const std::string& name, const Operands& operands);
  QPDFObjectHandle resource(const char* category, QPDFObjectHandle name);

  // graphics state
  void save(const Operands&);
  void restore(const Operands&);
  void concat(const Operands&);
  void setLineWidth(const Operands&);
  void setGraphicsState(const Operands&);
  void setBlending(QPDFObjectHandle state);
  // paths
  void moveOrLine(const Operands&);
  void curve(const Operands&);
  void rectangle(const Operands&);
  void fill(const Operands&);
  void stroke(const Operands&);
  void fillAndStroke(const Operands&);
  void clip(const Operands&);
  void endPath(const Operands&);
  void paintFill();
  void paintStroke();
  void shade(const Operands&);
  void extend(double x, double y);
  // colour
  template <bool stroking, ColourModel model>
  void setDevice(const Operands&);
  template <bool stroking>
  void setSpace(const Operands&);
  template <bool stroking>
  void setColour(const Operands&);
  void paintPattern(QPDFObjectHandle pattern, const QRectF& where);
  // text
  void beginText(const Operands&);
  void setFont(const Operands&);
  void useFont(QPDFObjectHandle font, double size);
  void setLeading(const Operands&);
  void setTextScale(const Operands&);
  void setTextMode(const Operands&);
  void moveText(const Operands&);
  void moveTextSettingLeading(const Operands&);
  void setTextMatrix(const Operands&);
  void nextLine(const Operands&);
  void showText(const Operands&);
  void showTextOnNextLine(const Operands&);
  // objects
  void showObject(const Operands&);
  void showImage(QPDFObjectHandle dictionary, const QString& name, bool isInline);

  QPDF& qpdf_;
  PageFindings& findings_;
  const CancelToken cancel_;
  const AffineTransform pageToPicture_;
  GraphicsState state_;
  std::vector<GraphicsState> saved_;
  QPDFObjectHandle resources_, fillPattern_;
  std::set<QPDFObjGen> patternsSeen_;
  std::optional<QRectF> path_;  ///< picture coordinates
  bool isClipping_ = false;
  int operators_ = 0;
  qint64 read_ = 0;
  int depth_ = 0;
  bool complete_ = true;
};

}  // namespace norvex::engine
