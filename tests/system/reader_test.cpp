// Protected documents, layers and text from outside.
#include <QFile>
#include <QTemporaryDir>

#include "check/check_files.h"
#include "kit/program.h"
#include "kit/test_main.h"

using namespace norvex;
using namespace norvex::checkfiles;

namespace {

bool write(const QString& path, const QByteArray& bytes) {
  QFile file(path);
  return file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size();
}

QByteArray contents(const QString& path) {
  QFile file(path);
  return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

/// A page, the same behind a password, and the password.
struct Protected {
  Protected() {
    written = write(plain, page("1 0 0 rg 0 0 10 10 re f")) && write(word, "geheim\n") &&
              kit::run("qpdf", {"--encrypt", "geheim", "owner", "256", "--modify=none", "--", plain, locked})
                      .exitCode == 0;
  }
  [[nodiscard]] kit::Ran convert(const QString& to, const QString& file, const QStringList& more) const {
    return kit::norvex(QStringList{"convert", file, "-o", folder.filePath(to)} + more);
  }

  QTemporaryDir folder;
  QString plain = folder.filePath("plain.pdf"), locked = folder.filePath("locked.pdf"),
          word = folder.filePath("word");
  bool written = false;
};

}  // namespace

class ReaderTest : public QObject {
  Q_OBJECT
 private slots:
  void aProtectedDocumentBecomesWhatAnOpenOneDoes() {
    const Protected files;
    QVERIFY(files.written);
    for (const char* format : {"png", "eps", "svg"}) {
      const QString open = QStringLiteral("open.%1").arg(format),
                    made = QStringLiteral("made.%1").arg(format);
      QCOMPARE(files.convert(open, files.plain, {}).exitCode, 0);
      const kit::Ran ran = files.convert(made, files.locked, {"--password-file", files.word});
      QVERIFY2(ran.exitCode == 0, ran.err.constData());
      QVERIFY(ran.err.contains("does not allow changing"));
      const auto drawing = [&](const QString& name) {
        QByteArray bytes = contents(files.folder.filePath(name));
        const qsizetype date = bytes.indexOf("%%CreationDate");
        return date < 0 ? bytes : bytes.remove(date, bytes.indexOf('\n', date) - date);
      };
      QVERIFY(!drawing(open).isEmpty());
      QCOMPARE(drawing(made).size(), drawing(open).size());
    }
  }

  void withoutTheRightPasswordNothingIsWritten() {
    const Protected files;
    QVERIFY(files.written);
    const kit::Ran without = files.convert("a.png", files.locked, {});
    QCOMPARE(without.exitCode, 3);
    QVERIFY2(without.err.contains("protected with a password"), without.err.constData());
    QVERIFY(write(files.word, "falsch"));
    const kit::Ran wrong = files.convert("a.png", files.locked, {"--password-file", files.word});
    QCOMPARE(wrong.exitCode, 3);
    QVERIFY2(wrong.err.contains("the password is wrong") && !wrong.err.contains("falsch"),
             wrong.err.constData());
    QVERIFY(!QFile::exists(files.folder.filePath("a.png")));
  }

  void whatIsMadeIsProtectedNoMore() {
    const Protected files;
    QVERIFY(files.written);
    QCOMPARE(files.convert("open.pdf", files.locked, {"--password-file", files.word}).exitCode, 0);
    QVERIFY(kit::run("qpdf", {"--show-encryption", files.folder.filePath("open.pdf")})
                .out.contains("File is not encrypted"));
    const kit::Ran checked = kit::norvex({"check", files.locked, "--password-file", files.word});
    QVERIFY2(checked.out.contains("security.encrypted"), checked.out.constData());
  }

  void thePasswordMayComeFromStandardInput() {
    const Protected files;
    QVERIFY(files.written);
    const kit::Ran ran = kit::norvex({"info", files.locked, "--password-file", "-"}, "geheim");
    QVERIFY2(ran.exitCode == 0 && ran.out.contains("Bounds"), ran.err.constData());
  }

  void wordsOfAnEpsAreWritten() {
    const kit::Ran ran =
        kit::norvex({"text", "-"},
                    "%!PS-Adobe-3.0 EPSF-3.0\n%%BoundingBox: 0 0 200 100\n%%EndComments\n"
                    "/Helvetica findfont 12 scalefont setfont 10 50 moveto (Some words) show\n%%EOF\n");
    QVERIFY2(ran.exitCode == 0, ran.err.constData());
    QCOMPARE(ran.out.trimmed(), QByteArray("Some words"));
    const kit::Ran svg =
        kit::norvex({"text", "-"},
                    "<svg xmlns='http://www.w3.org/2000/svg' width='200' height='100'><text x='9' "
                    "y='50'>Some words</text></svg>");
    QCOMPARE(svg.out.trimmed(), QByteArray("Some words"));
  }
};

NORVEX_TEST(ReaderTest)
#include "reader_test.moc"
