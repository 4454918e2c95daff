// What the desktop shows of the program before it is started: in every language of its windows.
#include <QDir>
#include <QFile>
#include <QHash>
#include <QRegularExpression>

#include "kit/test_main.h"

namespace {

const QString kRoot = QStringLiteral(NORVEX_SOURCE_DIR "/");

QString contentOf(const QString& path) {
  QFile file(kRoot + path);
  return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

/// The languages of the windows but English.
QStringList languages() {
  QStringList found;
  for (const QString& name : QDir(kRoot + "src/resources").entryList({"norvex_*.ts"}))
    if (name != QLatin1String("norvex_en.ts")) found << name.mid(7).chopped(3);
  return found;
}

}  // namespace

class DesktopTextsTest : public QObject {
  Q_OBJECT
 private slots:
  void theMenuEntrySpeaksEveryLanguage() {
    const QString entry = contentOf("packaging/com.norvex.Norvex.desktop");
    const QString action = entry.section("[Desktop Action", 1);
    QVERIFY(!action.isEmpty());
    QVERIFY(languages().size() >= 5);
    for (const QString& language : languages()) {
      for (const char* key : {"GenericName", "Comment", "Keywords"})
        QVERIFY2(entry.contains(QStringLiteral("\n%1[%2]=").arg(key, language)),
                 qPrintable(language + ' ' + key));
      QVERIFY2(action.contains("\nName[" + language + "]="), qPrintable(language));
    }
  }

  void theSoftwareCatalogueSpeaksEveryLanguage() {
    const QString catalogue = contentOf("packaging/com.norvex.Norvex.metainfo.xml.in");
    static const QRegularExpression text("<(?:summary|p|li)( xml:lang=\"(\\w+)\")?>");
    QHash<QString, int> count;
    for (const QRegularExpressionMatch& match : text.globalMatch(catalogue)) ++count[match.captured(2)];
    QVERIFY(count.value(QString()) >= 5);
    for (const QString& language : languages())
      QVERIFY2(count.value(language) == count.value(QString()), qPrintable(language));
  }
};

NORVEX_TEST(DesktopTextsTest)
#include "desktop_texts_test.moc"
