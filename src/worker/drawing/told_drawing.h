// A drawing that is made on one thread and, step by step as it is made, told to another one, which makes it
// again in a context of its own: of two parts of an image each thread paints one, and what is drawn is read
// once. cairo has no word for it: src/programs/cairo_calls.cpp stands in for the functions that a drawing is
// made with.
#pragma once

#include <cairo.h>

#include <memory>

namespace norvex::engine {

/// One drawing; one thread tells it, once, and one other may draw it. Areas, strokes and clips in one colour
/// each can be told. What waits to be drawn is bounded once there is somebody who draws it.
class ToldDrawing {
 public:
  ToldDrawing();
  ~ToldDrawing();
  ToldDrawing(const ToldDrawing&) = delete;
  ToldDrawing& operator=(const ToldDrawing&) = delete;

  /// While it lives, what this thread draws in `context` is told. One for each thread.
  class Teller {
   public:
    Teller(ToldDrawing& drawing, cairo_t* context);
    ~Teller();
    Teller(const Teller&) = delete;
    Teller& operator=(const Teller&) = delete;
  };

  /// No more is told. Call it whatever happened: whoever draws waits for it.
  void end();

  /// Nobody draws it any more: nothing more is told, and what waits is let go. From any thread.
  void abandon();

  /// Draws what is told, within the clip of `context` and with the same pixels, if both are the same places
  /// on their surfaces; returns when it has ended. False if some of it could not be told, or nothing was;
  /// then it is for the caller to clear what was drawn. The context has its clip, and no path, when it
  /// returns.
  [[nodiscard]] bool draw(cairo_t* context);

 private:
  class Steps;
  friend class Telling;
  const std::unique_ptr<Steps> steps_;
};

/// For whoever stands in for cairo's functions, to be called before them. They do nothing where no drawing in
/// this context is told. tellOther(): what is drawn now cannot be told.
void tellSave(cairo_t* context);
void tellRestore(cairo_t* context);
void tellClip(cairo_t* context);
void tellFill(cairo_t* context);
void tellStroke(cairo_t* context);
void tellOther(cairo_t* context);

}  // namespace norvex::engine
