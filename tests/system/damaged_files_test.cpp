// Cut and damaged files end in a picture or in a sentence, never in the death of the program or in a hang.
// Here a few small files; scripts/damage-files does it with any folder.
#include <QFile>
#include <QTemporaryDir>

#include "kit/program.h"
#include "kit/test_main.h"

using namespace norvex;

namespace {

const QString kData = QStringLiteral(NORVEX_SOURCE_DIR "/tests/data/");

kit::Ran damage(const QString& program, const QStringList& files, const QStringList& options) {
  return kit::run(QStringLiteral(NORVEX_SOURCE_DIR "/scripts/damage-files"),
                  QStringList{program} + files + options, {}, 1000);
}

}  // namespace

class DamagedFilesTest : public QObject {
  Q_OBJECT

  QTemporaryDir folder_;

  /// The script's words about a program that does with each of the files $f what is said here.
  kit::Ran damageWith(const QByteArray& whatItDoes, const QString& seconds = "30") {
    QFile program(folder_.filePath("program"));
    if (!program.open(QIODevice::WriteOnly)) return {};
    program.write("#!/bin/bash\nfor f in \"$@\"; do\n" + whatItDoes + "\ndone\nexit 0\n");
    program.setPermissions(QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    program.close();
    return damage(program.fileName(), {kData + "svg/everything.svg"},
                  {"--cuts", "4", "--flips", "2", "--seconds", seconds});
  }

 private slots:
  void cutAndDamagedFilesEndInASentence() {
    const kit::Ran ran =
        damage(kit::norvexProgram(),
               {kData + "metadata/binary_tiff_first.eps", kData + "metadata/interchange_preview.epsi",
                kData + "pdf/shading.pdf", kData + "svg/everything.svg"},
               {"--cuts", "4", "--flips", "4"});
    QVERIFY2(!ran.crashed && ran.exitCode == 0, ran.out + ran.err);
    QVERIFY2(ran.out.contains("4 files, 64 runs"), ran.out);
  }

  // What is read among others is told as a command for one file.
  void aDeathIsToldWithTheFileThatItHappensWith() {
    const kit::Ran ran = damageWith("[[ $f == */2-cut* ]] && kill -SEGV $$");
    QCOMPARE(ran.exitCode, 1);
    QVERIFY2(ran.out.contains("ended with -11"), ran.out);
    QCOMPARE(ran.out.count("/files/2-cut"), 2);  // by info and by convert
    QVERIFY2(!ran.out.contains("/files/1-cut"), ran.out);
    QVERIFY2(ran.out.contains("2 deaths of the program, 0 hangs"), ran.out);
  }

  void aHangIsToldWithTheFileThatItHappensWith() {
    const kit::Ran ran = damageWith("[[ $1 == info && $f == */4-flip* ]] && sleep 100", "6");
    QCOMPARE(ran.exitCode, 1);
    QCOMPARE(ran.out.count("/files/4-flip"), 1);
    QVERIFY2(ran.out.contains("0 deaths of the program, 1 hangs"), ran.out);
  }

  void theDeathOfAPictureProcessIsToldAndNoFault() {
    const kit::Ran ran =
        damageWith("[[ $f == */1-cut* ]] && echo \"norvex: $f: it ended without an answer\" >&2");
    QCOMPARE(ran.exitCode, 0);
    QCOMPARE(ran.out.count("/files/1-cut"), 4);  // the sentence, and the command
    QVERIFY2(ran.out.contains("2 picture processes died"), ran.out);
  }

  void whatIsNotOneSentenceAFileIsWrong() {
    for (const QByteArray& wrong :
         {QByteArray("[[ $f == */1-cut* ]] && echo \"terminate called\" >&2 && exit 3"),
          QByteArray("[[ $f == */1-cut* ]] && exit 3"),
          QByteArray("[[ $f == */1-cut* ]] && echo \"norvex: $f: a\" >&2 && echo \"norvex: $f: b\" >&2")}) {
      const kit::Ran ran = damageWith(wrong);
      QVERIFY2(ran.exitCode == 1 && ran.out.contains("2 wrong reports"), wrong + ran.out);
    }
  }

  void whatHappensOnlyAmongOthersIsToldAsThat() {
    const kit::Ran ran = damageWith("[[ $f == */1-cut* && $3 == */files/* ]] && exit 3");
    QCOMPARE(ran.exitCode, 1);
    QVERIFY2(ran.out.contains("only among others"), ran.out);
  }

  void whatIsLeftBehindIsWrong() {
    const kit::Ran ran = damageWith("[[ $1 == convert ]] && touch \"$TMPDIR/litter\"");
    QCOMPARE(ran.exitCode, 1);
    QVERIFY2(ran.out.contains("left behind") && ran.out.contains("/litter"), ran.out);
  }
};

NORVEX_TEST(DamagedFilesTest)
#include "damaged_files_test.moc"
