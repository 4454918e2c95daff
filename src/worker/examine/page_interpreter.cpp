#include "worker/examine/page_interpreter.h"

#include <algorithm>
#include <cmath>
#include <utility>

#include "protocol/limits.h"
#include "worker/examine/operands.h"
#include "worker/pdf/pdf_colour_operators.h"

// The contents, graphics state, paths and colours. Text and images are in page_interpreter_text.cpp and
// page_interpreter_objects.cpp.
namespace norvex::engine {

/// qpdf's parser calls back with operands and operators.
class PageInterpreter::Callbacks final : public QPDFObjectHandle::ParserCallbacks {
 public:
  explicit Callbacks(PageInterpreter& page) : page_(page) {}

  void handleObject(QPDFObjectHandle object, size_t, size_t) override {
    if (!object.isOperator()) {
      if (operands_.size() < limits::maximumOperands) operands_.push_back(object);
      return;
    }
    const std::string name = object.getOperatorValue();
    const bool goesOn = page_.carryOut(name, operands_);
    operands_.clear();
    if (!goesOn) terminateParsing();
  }
  void handleEOF() override {}

 private:
  PageInterpreter& page_;
  Operands operands_;
};

PageInterpreter::PageInterpreter(QPDF& qpdf, PageFindings& findings, const AffineTransform& toPicture,
                                 const QRectF& clip, const CancelToken& cancel)
    : qpdf_(qpdf), findings_(findings), cancel_(cancel), pageToPicture_(toPicture) {
  state_.toPicture = toPicture;
  state_.clip = clip;
}

const std::map<std::string, PageInterpreter::Operator>& PageInterpreter::operators() {
  using P = PageInterpreter;
  static const std::map<std::string, Operator> table{{"q", &P::save},
                                                     {"Q", &P::restore},
                                                     {"cm", &P::concat},
                                                     {"w", &P::setLineWidth},
                                                     {"gs", &P::setGraphicsState},
                                                     {"m", &P::moveOrLine},
                                                     {"l", &P::moveOrLine},
                                                     {"c", &P::curve},
                                                     {"v", &P::curve},
                                                     {"y", &P::curve},
                                                     {"re", &P::rectangle},
                                                     {"f", &P::fill},
                                                     {"F", &P::fill},
                                                     {"f*", &P::fill},
                                                     {"S", &P::stroke},
                                                     {"s", &P::stroke},
                                                     {"B", &P::fillAndStroke},
                                                     {"B*", &P::fillAndStroke},
                                                     {"b", &P::fillAndStroke},
                                                     {"b*", &P::fillAndStroke},
                                                     {"W", &P::clip},
                                                     {"W*", &P::clip},
                                                     {"n", &P::endPath},
                                                     {"sh", &P::shade},
                                                     {"g", &P::setDevice<false, ColourModel::Grey>},
                                                     {"G", &P::setDevice<true, ColourModel::Grey>},
                                                     {"rg", &P::setDevice<false, ColourModel::Rgb>},
                                                     {"RG", &P::setDevice<true, ColourModel::Rgb>},
                                                     {"k", &P::setDevice<false, ColourModel::Cmyk>},
                                                     {"K", &P::setDevice<true, ColourModel::Cmyk>},
                                                     {"cs", &P::setSpace<false>},
                                                     {"CS", &P::setSpace<true>},
                                                     {"sc", &P::setColour<false>},
                                                     {"scn", &P::setColour<false>},
                                                     {"SC", &P::setColour<true>},
                                                     {"SCN", &P::setColour<true>},
                                                     {"BT", &P::beginText},
                                                     {"Tf", &P::setFont},
                                                     {"TL", &P::setLeading},
                                                     {"Tz", &P::setTextScale},
                                                     {"Tr", &P::setTextMode},
                                                     {"Td", &P::moveText},
                                                     {"TD", &P::moveTextSettingLeading},
                                                     {"Tm", &P::setTextMatrix},
                                                     {"T*", &P::nextLine},
                                                     {"Tj", &P::showText},
                                                     {"TJ", &P::showText},
                                                     {"'", &P::showTextOnNextLine},
                                                     {"\"", &P::showTextOnNextLine},
                                                     {"Do", &P::showObject}};
  return table;
}

bool PageInterpreter::run(QPDFObjectHandle contents, QPDFObjectHandle resources) {
  std::string bytes;
  const auto add = [&](QPDFObjectHandle stream) {
    if (!stream.isStream() || read_ >= limits::maximumReadContents) return;
    const std::string part = unpacked(stream, limits::maximumReadContents - read_);
    read_ += qint64(part.size());
    bytes += part + '\n';
  };
  if (contents.isArray())
    for (int i = 0; i < contents.getArrayNItems(); ++i) add(contents.getArrayItem(i));
  else
    add(contents);
  runContents(bytes, resources);
  return complete_ && read_ < limits::maximumReadContents;
}

void PageInterpreter::runContents(const std::string& bytes, QPDFObjectHandle resources) {
  const QPDFObjectHandle outer = std::exchange(resources_, resources);
  Callbacks callbacks(*this);
  QPDFObjectHandle::parseContentStream(QPDFObjectHandle::newStream(&qpdf_, bytes), &callbacks);
  resources_ = outer;
}

bool PageInterpreter::carryOut(const std::string& name, const Operands& operands) {
  if (++operators_ > limits::maximumOperators || cancel_.cancelled()) complete_ = false;
  if (!complete_) return false;
  if (name == "ID") {
    showImage(inlineImageOf(operands), QStringLiteral("inline"), true);
    return true;
  }
  const auto at = operators().find(name);
  if (at != operators().end()) (this->*at->second)(operands);
  return true;
}

QPDFObjectHandle PageInterpreter::resource(const char* category, QPDFObjectHandle name) {
  if (!name.isName() || !resources_.isDictionary()) return QPDFObjectHandle::newNull();
  QPDFObjectHandle all = resources_.getKey(category);
  return all.isDictionary() ? all.getKey(name.getName()) : QPDFObjectHandle::newNull();
}

// A form begins with the state of whoever shows it, and leaves none behind.
void PageInterpreter::runForm(QPDFObjectHandle form, const AffineTransform& matrix) {
  if (depth_ >= limits::maximumResourceDepth || read_ >= limits::maximumReadContents) {
    complete_ = false;
    return;
  }
  const GraphicsState outer = state_;
  const std::vector<GraphicsState> outerSaved = std::exchange(saved_, {});
  const auto outerPath = std::exchange(path_, std::nullopt);
  QPDFObjectHandle dictionary = form.getDict();
  state_.toPicture = matrixOf(dictionary.getKey("/Matrix")) * matrix;
  if (const auto box = rectOf(dictionary.getKey("/BBox")))
    state_.clip = state_.clip.intersected(state_.toPicture.mapRect(*box));
  const std::string bytes = unpacked(form, limits::maximumReadContents - read_);
  read_ += qint64(bytes.size()) + 1;
  QPDFObjectHandle own = dictionary.getKey("/Resources");
  ++depth_;
  runContents(bytes, own.isDictionary() ? own : resources_);
  --depth_;
  state_ = outer;
  saved_ = outerSaved;
  path_ = outerPath;
}

void PageInterpreter::save(const Operands&) {
  if (saved_.size() < limits::maximumSavedStates) saved_.push_back(state_);
}

void PageInterpreter::restore(const Operands&) {
  if (saved_.empty()) return;
  state_ = saved_.back();
  saved_.pop_back();
}

void PageInterpreter::concat(const Operands& operands) {
  const std::vector<double> n = numbersOf(operands);
  if (n.size() < 6) return;
  state_.toPicture = AffineTransform(n[0], n[1], n[2], n[3], n[4], n[5]) * state_.toPicture;
}

void PageInterpreter::setLineWidth(const Operands& operands) {
  if (const std::vector<double> n = numbersOf(operands); !n.empty()) state_.lineWidth = std::abs(n[0]);
}

void PageInterpreter::setGraphicsState(const Operands& operands) {
  if (operands.empty()) return;
  QPDFObjectHandle state = resource("/ExtGState", operands[0]);
  if (!state.isDictionary()) return;
  const auto number = [&](const char* key, double& value) {
    if (QPDFObjectHandle given = state.getKey(key); given.isNumber()) value = given.getNumericValue();
  };
  number("/LW", state_.lineWidth);
  number("/CA", state_.stroke.alpha);
  number("/ca", state_.fill.alpha);
  if (QPDFObjectHandle given = state.getKey("/OP"); given.isBool()) {
    state_.stroke.overprints = given.getBoolValue();
    state_.fill.overprints = given.getBoolValue();  // unless it is said apart
  }
  if (QPDFObjectHandle given = state.getKey("/op"); given.isBool())
    state_.fill.overprints = given.getBoolValue();
  if (QPDFObjectHandle font = state.getKey("/Font");
      font.isArray() && font.getArrayNItems() > 1 && font.getArrayItem(1).isNumber())
    useFont(font.getArrayItem(0), font.getArrayItem(1).getNumericValue());
  setBlending(state);
}

void PageInterpreter::setBlending(QPDFObjectHandle state) {
  QPDFObjectHandle mode = state.getKey("/BM"), mask = state.getKey("/SMask");
  if (mode.isArray() && mode.getArrayNItems() > 0) mode = mode.getArrayItem(0);
  if (mode.isName()) state_.blends = mode.getName() != "/Normal" && mode.getName() != "/Compatible";
  if (mask.isDictionary()) state_.blends = true;
  if (mask.isNameAndEquals("/None") && !mode.isName()) state_.blends = false;
}

void PageInterpreter::extend(double x, double y) {
  const QPointF point = state_.toPicture.map(QPointF(x, y));
  if (!std::isfinite(point.x()) || !std::isfinite(point.y())) return;
  if (!path_) {
    path_ = QRectF(point, point);
    return;
  }
  path_ = QRectF(QPointF(std::min(path_->left(), point.x()), std::min(path_->top(), point.y())),
                 QPointF(std::max(path_->right(), point.x()), std::max(path_->bottom(), point.y())));
}

void PageInterpreter::moveOrLine(const Operands& operands) {
  if (const std::vector<double> n = numbersOf(operands); n.size() >= 2) extend(n[0], n[1]);
}

// The control points enclose the curve.
void PageInterpreter::curve(const Operands& operands) {
  const std::vector<double> n = numbersOf(operands);
  for (size_t i = 0; i + 1 < n.size(); i += 2) extend(n[i], n[i + 1]);
}

void PageInterpreter::rectangle(const Operands& operands) {
  const std::vector<double> n = numbersOf(operands);
  if (n.size() < 4) return;
  for (const double x : {n[0], n[0] + n[2]})
    for (const double y : {n[1], n[1] + n[3]}) extend(x, y);
}

void PageInterpreter::paintFill() {
  if (!path_) return;
  if (state_.fill.space.isPattern) return paintPattern(fillPattern_, *path_);
  findings_.paint(PaintKind::Fill, state_, state_.fill, *path_);
}

void PageInterpreter::paintStroke() {
  if (!path_ || !state_.stroke.colour.isVisible) return;
  const double width = state_.lineWidth * leastScale(state_.toPicture);
  const double half = width / 2;
  const QRectF rect = path_->adjusted(-half, -half, half, half);
  findings_.line(state_, width, rect);
  findings_.paint(PaintKind::Stroke, state_, state_.stroke, rect);
}

void PageInterpreter::fill(const Operands& operands) {
  paintFill();
  endPath(operands);
}

void PageInterpreter::stroke(const Operands& operands) {
  paintStroke();
  endPath(operands);
}

void PageInterpreter::fillAndStroke(const Operands& operands) {
  paintFill();
  paintStroke();
  endPath(operands);
}

void PageInterpreter::clip(const Operands&) {
  isClipping_ = true;
}

void PageInterpreter::endPath(const Operands&) {
  if (isClipping_) state_.clip = path_ ? state_.clip.intersected(*path_) : QRectF();
  isClipping_ = false;
  path_.reset();
}

void PageInterpreter::shade(const Operands& operands) {
  if (operands.empty()) return;
  QPDFObjectHandle shading = resource("/Shading", operands[0]);
  if (shading.isStream()) shading = shading.getDict();
  if (shading.isDictionary())
    findings_.shading(state_, colourSpaceOf(shading.getKey("/ColorSpace")).model, state_.clip);
}

template <bool stroking, ColourModel model>
void PageInterpreter::setDevice(const Operands& operands) {
  PaintState& paint = stroking ? state_.stroke : state_.fill;
  paint.space = {model};
  paint.colour = colourOf(paint.space, numbersOf(operands));
}

template <bool stroking>
void PageInterpreter::setSpace(const Operands& operands) {
  if (operands.empty()) return;
  QPDFObjectHandle found = resource("/ColorSpace", operands[0]);
  PaintState& paint = stroking ? state_.stroke : state_.fill;
  paint.space = colourSpaceOf(found.isNull() ? operands[0] : found);
  paint.colour = initialColourOf(paint.space);
}

template <bool stroking>
void PageInterpreter::setColour(const Operands& operands) {
  PaintState& paint = stroking ? state_.stroke : state_.fill;
  QPDFObjectHandle last = operands.empty() ? QPDFObjectHandle::newNull() : operands.back();
  if (last.isName()) {
    if constexpr (!stroking) fillPattern_ = resource("/Pattern", last);
    return;
  }
  paint.colour = colourOf(paint.space, numbersOf(operands));
}

// A tile is carried out once, where it lies by its own matrix: its place is not that of its copies.
void PageInterpreter::paintPattern(QPDFObjectHandle pattern, const QRectF& where) {
  QPDFObjectHandle dictionary = pattern.isStream() ? pattern.getDict() : pattern;
  if (!dictionary.isDictionary()) return;
  QPDFObjectHandle shading = dictionary.getKey("/Shading");
  if (shading.isStream()) shading = shading.getDict();
  if (shading.isDictionary())
    return findings_.shading(state_, colourSpaceOf(shading.getKey("/ColorSpace")).model, where);
  if (pattern.isStream() && pattern.isIndirect() && patternsSeen_.insert(pattern.getObjGen()).second)
    runForm(pattern, pageToPicture_);
}

}  // namespace norvex::engine
