// The application's picture.
#include "application/application.h"

#include <QIcon>

#include <algorithm>

#include "kit/test_main.h"

using namespace norvex;

class ApplicationTest : public QObject {
  Q_OBJECT
 private slots:
  /// Of a program that is not installed, and without the theme that would have it.
  void thePictureIsThereInEverySize() {
    QIcon::setThemeSearchPaths({});
    QIcon::setFallbackSearchPaths({});
    showApplicationIcon();
    QList<int> sizes;
    for (const QSize& size : QApplication::windowIcon().availableSizes()) {
      QCOMPARE(size.width(), size.height());
      sizes << size.width();
    }
    std::sort(sizes.begin(), sizes.end());
    QCOMPARE(sizes, QList<int>({16, 32, 64, 128, 256}));
  }
};

NORVEX_TEST(ApplicationTest)
#include "application_test.moc"
