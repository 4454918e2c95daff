// Programs that a test runs beside itself: a process of its own from its beginning. A fork of a test program
// is none where that has threads, and Qt's tests have one: locks stay held, and the thread sanitizer hands no
// signals on there.
#pragma once

#include <QCoreApplication>
#include <QStringList>

#include <functional>

#include "kit/program.h"

namespace norvex::kit {

/// Called before main. `work` gives the program's exit code.
bool registerProgram(const char* name, std::function<int(const QStringList& arguments)> work);

/// Runs it with an application object but no test, and waits for its end.
inline Ran runProgram(const QString& name, const QStringList& arguments) {
  return run(QCoreApplication::applicationFilePath(),
             QStringList{QStringLiteral("--program"), name} + arguments);
}

}  // namespace norvex::kit
