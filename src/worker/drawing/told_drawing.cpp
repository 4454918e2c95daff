#include "worker/drawing/told_drawing.h"

#include <array>
#include <condition_variable>
#include <deque>
#include <exception>
#include <mutex>
#include <utility>
#include <vector>

namespace norvex::engine {
namespace {

using Path = std::unique_ptr<cairo_path_t, decltype(&cairo_path_destroy)>;

enum class Kind { Save, Restore, Clip, Fill, Stroke };

constexpr size_t kBatch = 4 << 10;        // elements of paths handed over at once: a lock costs more than one
constexpr size_t kMostWaiting = 1 << 20;  // whoever tells faster waits

/// Of a stroke.
struct Line {
  explicit Line(cairo_t* context)
      : width(cairo_get_line_width(context)),
        miterLimit(cairo_get_miter_limit(context)),
        cap(cairo_get_line_cap(context)),
        join(cairo_get_line_join(context)),
        dashes(size_t(cairo_get_dash_count(context))) {
    if (!dashes.empty()) cairo_get_dash(context, dashes.data(), &offset);
  }
  void set(cairo_t* context) const {
    cairo_set_line_width(context, width);
    cairo_set_miter_limit(context, miterLimit);
    cairo_set_line_cap(context, cap);
    cairo_set_line_join(context, join);
    cairo_set_dash(context, dashes.data(), int(dashes.size()), offset);
  }

  double width, miterLimit;
  cairo_line_cap_t cap;
  cairo_line_join_t join;
  std::vector<double> dashes;
  double offset = 0;
};

/// The path and what it is painted with, as they are in a context.
struct Shape {
  explicit Shape(cairo_t* context)
      : tolerance(cairo_get_tolerance(context)),
        antialias(cairo_get_antialias(context)),
        rule(cairo_get_fill_rule(context)),
        line(context) {
    cairo_get_matrix(context, &matrix);
    // In units of the surface: exactly what the path is kept as.
    cairo_save(context);
    cairo_identity_matrix(context);
    path.reset(cairo_copy_path(context));
    cairo_restore(context);
    isWhole =
        path->status == CAIRO_STATUS_SUCCESS && cairo_get_group_target(context) == cairo_get_target(context);
    isPlain = cairo_get_operator(context) == CAIRO_OPERATOR_OVER &&
              cairo_pattern_get_rgba(cairo_get_source(context), &colour[0], &colour[1], &colour[2],
                                     &colour[3]) == CAIRO_STATUS_SUCCESS;
  }
  void set(cairo_t* context) const {
    cairo_identity_matrix(context);
    cairo_new_path(context);
    cairo_append_path(context, path.get());
    cairo_set_matrix(context, &matrix);
    cairo_set_tolerance(context, tolerance);
    cairo_set_antialias(context, antialias);
    cairo_set_fill_rule(context, rule);
    cairo_set_source_rgba(context, colour[0], colour[1], colour[2], colour[3]);
    line.set(context);
  }

  Path path{nullptr, &cairo_path_destroy};
  cairo_matrix_t matrix{};
  double tolerance;
  cairo_antialias_t antialias;
  cairo_fill_rule_t rule;
  std::array<double, 4> colour{};
  Line line;
  bool isWhole = false;  ///< as it is for the image
  bool isPlain = false;  ///< painted in a colour
};

struct Step {
  Kind kind;
  std::unique_ptr<const Shape> shape;  ///< of what is painted and clipped
};

struct Batch {
  std::vector<Step> steps;
  size_t elements = 0;
};

/// Makes the steps of a drawing; undoes what they have left saved when it goes.
class Again {
 public:
  explicit Again(cairo_t* context) : context_(context) { cairo_save(context_); }
  ~Again() {
    for (; saved_ > 0; --saved_) cairo_restore(context_);
    cairo_restore(context_);
    cairo_new_path(context_);
  }
  Again(const Again&) = delete;
  Again& operator=(const Again&) = delete;

  void make(const Step& step) {
    if (step.shape) step.shape->set(context_);
    switch (step.kind) {
      case Kind::Save:
        cairo_save(context_);
        ++saved_;
        break;
      case Kind::Restore:
        if (saved_ > 0) cairo_restore(context_);
        saved_ -= saved_ > 0 ? 1 : 0;
        break;
      case Kind::Clip:
        cairo_clip(context_);
        break;
      case Kind::Fill:
        cairo_fill_preserve(context_);
        break;
      case Kind::Stroke:
        cairo_stroke_preserve(context_);
        break;
    }
  }

 private:
  cairo_t* context_;
  int saved_ = 0;
};

}  // namespace

/// The steps on their way from one thread to the other.
class ToldDrawing::Steps {
 public:
  /// False if no more need be told.
  bool add(Kind kind, cairo_t* context);
  void lose();
  void end();
  bool draw(cairo_t* context);

 private:
  bool handOver();

  Batch begun_;              // of the thread that tells
  bool hasPainted_ = false;  // likewise
  std::mutex lock_;
  std::condition_variable changed_;
  std::deque<Batch> waiting_;  // guarded by lock_, and the rest
  size_t elementsWaiting_ = 0;
  bool isDrawn_ = false, isComplete_ = false, isLost_ = false;
};

bool ToldDrawing::Steps::add(Kind kind, cairo_t* context) {
  Step step{kind, nullptr};
  if (kind != Kind::Save && kind != Kind::Restore) {
    auto shape = std::make_unique<Shape>(context);
    if (!shape->isWhole || (kind != Kind::Clip && !shape->isPlain)) {
      lose();
      return false;
    }
    begun_.elements += size_t(shape->path->num_data);
    hasPainted_ = hasPainted_ || kind != Kind::Clip;
    step.shape = std::move(shape);
  }
  begun_.elements += sizeof(Shape) / sizeof(cairo_path_data_t);
  begun_.steps.push_back(std::move(step));
  return begun_.elements < kBatch || handOver();
}

bool ToldDrawing::Steps::handOver() {
  Batch batch = std::exchange(begun_, {});
  std::unique_lock guard(lock_);
  elementsWaiting_ += batch.elements;
  waiting_.push_back(std::move(batch));
  changed_.notify_all();
  changed_.wait(guard, [this] { return !isDrawn_ || isLost_ || elementsWaiting_ <= kMostWaiting; });
  return !isLost_;
}

void ToldDrawing::Steps::lose() {
  const std::lock_guard guard(lock_);
  isLost_ = true;
  waiting_.clear();
  changed_.notify_all();
}

void ToldDrawing::Steps::end() {
  if (!hasPainted_) return lose();
  try {
    (void)handOver();
  } catch (const std::exception&) {
    lose();
  }
  const std::lock_guard guard(lock_);
  isComplete_ = true;
  changed_.notify_all();
}

bool ToldDrawing::Steps::draw(cairo_t* context) {
  struct Drawing {
    explicit Drawing(Steps& steps) : steps_(steps) {
      const std::lock_guard guard(steps_.lock_);
      steps_.isDrawn_ = true;
    }
    ~Drawing() {  // whatever ended it: nobody waits for it
      const std::lock_guard guard(steps_.lock_);
      steps_.isDrawn_ = false;
      steps_.changed_.notify_all();
    }
    Steps& steps_;
  };
  const Drawing drawing(*this);
  Again again(context);
  for (;;) {
    Batch batch;
    {
      std::unique_lock guard(lock_);
      changed_.wait(guard, [this] { return isLost_ || isComplete_ || !waiting_.empty(); });
      if (isLost_) return false;
      if (waiting_.empty()) return true;
      batch = std::move(waiting_.front());
      waiting_.pop_front();
      elementsWaiting_ -= batch.elements;
      changed_.notify_all();
    }
    for (const Step& step : batch.steps) again.make(step);
  }
}

/// What this thread tells.
class Telling {
 public:
  static thread_local cairo_t* context;
  static thread_local ToldDrawing* drawing;

  /// Never throws: between it and who began to draw are frames of libraries.
  static void add(Kind kind, cairo_t* of) {
    if (of != context || !context) return;
    context = nullptr;  // what is called meanwhile is none of the drawing
    try {
      if (drawing->steps_->add(kind, of)) context = of;
    } catch (const std::exception&) {
      drawing->steps_->lose();
    }
  }
  static void lose(cairo_t* of) {
    if (of != context || !context) return;
    drawing->steps_->lose();
    context = nullptr;
  }
};

thread_local cairo_t* Telling::context = nullptr;
thread_local ToldDrawing* Telling::drawing = nullptr;

ToldDrawing::ToldDrawing() : steps_(std::make_unique<Steps>()) {}
ToldDrawing::~ToldDrawing() = default;

void ToldDrawing::end() {
  steps_->end();
}

void ToldDrawing::abandon() {
  steps_->lose();
}

bool ToldDrawing::draw(cairo_t* context) {
  return steps_->draw(context);
}

ToldDrawing::Teller::Teller(ToldDrawing& drawing, cairo_t* context) {
  Telling::drawing = &drawing;
  Telling::context = context;
}

ToldDrawing::Teller::~Teller() {
  Telling::context = nullptr;
  Telling::drawing = nullptr;
}

void tellSave(cairo_t* context) {
  Telling::add(Kind::Save, context);
}
void tellRestore(cairo_t* context) {
  Telling::add(Kind::Restore, context);
}
void tellClip(cairo_t* context) {
  Telling::add(Kind::Clip, context);
}
void tellFill(cairo_t* context) {
  Telling::add(Kind::Fill, context);
}
void tellStroke(cairo_t* context) {
  Telling::add(Kind::Stroke, context);
}
void tellOther(cairo_t* context) {
  Telling::lose(context);
}

}  // namespace norvex::engine
