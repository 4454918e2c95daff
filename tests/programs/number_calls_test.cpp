#include <dlfcn.h>

#include <cmath>
#include <cstdarg>
#include <cstdio>
#include <limits>
#include <random>

#include "kit/test_main.h"

using Printer = int (*)(char*, size_t, const char*, ...);

namespace {

constexpr size_t kRoom = 400;  // DBL_MAX has 309 digits in front of its point

/// The C library's, which nothing stands in for.
int expected(char* buffer, size_t size, const char* format, ...) {
  std::va_list arguments;
  va_start(arguments, format);
  const int length = std::vsnprintf(buffer, size, format, arguments);
  va_end(arguments);
  return length;
}

QByteArray text(Printer print, int decimals, double number, size_t size = kRoom) {
  char buffer[kRoom] = "untouched";
  const int length = print(buffer, size, "%.*f", decimals, number);
  return QByteArray::number(length) + ' ' + buffer;
}

/// Numbers as drawings have them: places in points, halves of units in the last place, colours, and any at
/// all.
double anyNumber(std::mt19937_64& chance) {
  const double place = std::uniform_real_distribution(-700.0, 700.0)(chance);
  switch (chance() % 5) {
    case 0:
      return std::round(place * 100) / 100;
    case 1:
      return std::ldexp(std::round(place), -int(chance() % 20));
    case 2:
      return place / 1e4;
    case 3:
      return std::ldexp(place, int(chance() % 2000) - 1000);
    default:
      return place;
  }
}

}  // namespace

class NumberCallsTest : public QObject {
  Q_OBJECT
 private slots:
  void librariesFindTheFunctionOfThisProgram() {
    Dl_info own{};
    [[maybe_unused]] Dl_info found{};  // sanitizers have functions of their own
    static const int ofThisProgram = 0;
    QVERIFY(dladdr(&ofThisProgram, &own));
    for (const char* name : {"snprintf", "__snprintf_chk"}) {
      const void* function = dlsym(RTLD_DEFAULT, name);
#if defined(__SANITIZE_ADDRESS__) || defined(__SANITIZE_THREAD__)
      QVERIFY(function);  // of the sanitizer, which looks at what is printed
#else
      QVERIFY2(function && dladdr(function, &found), name);
      QCOMPARE(found.dli_fbase, own.dli_fbase);
#endif
    }
  }

  void digitsAreThoseOfTheCLibrary() {
    std::mt19937_64 chance(4);
    const Printer print = &std::snprintf;
    for (int i = 0; i < 200'000; ++i) {
      const double number = anyNumber(chance);
      const int decimals = i % 3 == 0 ? 6 : i % 3 == 1 ? 18 : int(chance() % 20);
      QCOMPARE(text(print, decimals, number), text(&expected, decimals, number));
    }
  }

  void formatsOfCairoHaveTheirDecimals() {
    char buffer[kRoom];
    const Printer print = &std::snprintf;
    QCOMPARE(print(buffer, kRoom, "%f", 12.3456785), 9);
    QCOMPARE(buffer, "12.345678");  // the double is a little below the half
    QCOMPARE(print(buffer, kRoom, "%.18f", 0.1), 20);
    QCOMPARE(buffer, "0.100000000000000006");
    QCOMPARE(print(buffer, kRoom, "%.*f", 0, 2.5), 1);
    QCOMPARE(buffer, "2");  // halves go to the even one
    QCOMPARE(print(buffer, kRoom, "%f", -0.0), 9);
    QCOMPARE(buffer, "-0.000000");
  }

  void whatIsNoPlainNumberIsTheCLibrarys() {
    const Printer print = &std::snprintf;
    const double infinite = std::numeric_limits<double>::infinity();
    for (const double number : {infinite, -infinite, std::nan("")})
      QCOMPARE(text(print, 6, number), text(&expected, 6, number));
    QCOMPARE(text(print, -1, 1.5), QByteArray("8 1.500000"));  // as if no decimals were told
    char buffer[kRoom];
    QCOMPARE(print(buffer, kRoom, "%f %d%%", 0.25, 7), 11);
    QCOMPARE(buffer, "0.250000 7%");
    QCOMPARE(print(buffer, kRoom, "%s", "%f"), 2);
    QCOMPARE(buffer, "%f");
  }

  void whatDoesNotFitIsCutAndCounted() {
    const Printer print = &std::snprintf;
    for (const size_t size : {0, 1, 5, 9, 10, 11})
      QCOMPARE(text(print, 6, -12.5, size), text(&expected, 6, -12.5, size));
    QCOMPARE(text(print, 6, -12.5, 10), QByteArray("10 -12.50000"));
    QCOMPARE(text(print, 6, -12.5, 0), QByteArray("10 untouched"));
    const double most = std::numeric_limits<double>::max();
    QCOMPARE(text(print, 18, most), text(&expected, 18, most));
  }
};

NORVEX_TEST(NumberCallsTest)
#include "number_calls_test.moc"
