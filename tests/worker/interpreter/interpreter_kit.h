// An interpreter program with what a document's process has, and what is drawn by it.
#pragma once

#include <QDir>
#include <QTemporaryDir>

#include <string>

#include "worker/interpreter_program.h"
#include "worker/postscript/distill.h"
#include "worker/postscript/distiller.h"
#include "worker/postscript/ghostscript.h"

namespace norvex::kit {

inline const QByteArray interpretedDrawing =
    "/Helvetica findfont 12 scalefont setfont 5 5 moveto (words) show\n"
    "0.1 0.2 0.3 0.4 setcmykcolor 0 0 30 20 rectfill\n";
inline const QRectF interpretedBox(0, 0, 60, 40);

/// A running program; its folders and a document's context go with it.
class Interpreters {
 public:
  explicit Interpreters(InterpreterOutlook outlook = {},
                        const std::string& program = NORVEX_BUILD_DIR "/norvex-postscript")
      : program_(root_.path().toStdString(), outlook, program) {
    program_.start();
    context_.interpreters = program_.asking();
    context_.scratchFolder = root_.path();
    context_.limits.seconds = 60;
  }
  engine::EngineContext& context() { return context_; }
  InterpreterProgram& program() { return program_; }
  [[nodiscard]] QStringList folders() const {
    return QDir(root_.path()).entryList(QDir::NoDotAndDotDot | QDir::AllEntries);
  }
  /// What a program says, run by an interpreter of its own.
  Result<engine::GhostscriptOutput> run(const QByteArray& program) {
    auto child = engine::GhostscriptChild::fork(program_.asking(), context_.limits);
    if (!child) return child.error();
    return (*child)->run({program}, context_);
  }
  QByteArray saidBy(const QByteArray& program) {
    const auto run = this->run(program + "\nflush quit\n");
    return run ? run->messages : run.error().message.toUtf8();
  }
  [[nodiscard]] bool stillWork() {
    const int before = program_.pid();
    program_.start();  // starts it again if it does not run
    return program_.pid() == before && engine::distill(interpretedDrawing, interpretedBox, context_).ok() &&
           context_.interpreters >= 0;
  }

 private:
  QTemporaryDir root_;
  engine::EngineContext context_;
  InterpreterProgram program_;
};

inline Error errorOf(const Result<engine::Distilled>& distilled) {
  return distilled ? Error{ErrorKind::Unsupported, QStringLiteral("no error")} : distilled.error();
}

}  // namespace norvex::kit
