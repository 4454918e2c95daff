// Registry of the test classes of one test program.
#pragma once

#include <QObject>
#include <QtTest>

#include <functional>
#include <memory>

namespace norvex::kit {

/// Called by NORVEX_TEST before main; `file` is the test's source file, whose stem is the ctest case name.
bool registerTest(const char* file, std::function<std::unique_ptr<QObject>()> make);

}  // namespace norvex::kit

/// Put this once below a test class; `--case STEM` then runs the class.
#define NORVEX_TEST(Class)                                         \
  static const bool registered##Class = norvex::kit::registerTest( \
      __FILE__, []() -> std::unique_ptr<QObject> { return std::make_unique<Class>(); });
