// Cut and damaged files end in a picture or in a sentence, never in the death of the program or in a hang.
// Here a few small files; scripts/damage-files does it with any folder.
#include "kit/program.h"
#include "kit/test_main.h"

using namespace norvex;

class DamagedFilesTest : public QObject {
  Q_OBJECT
 private slots:
  void cutAndDamagedFilesEndInASentence() {
    const QString data = QStringLiteral(NORVEX_SOURCE_DIR "/tests/data/");
    const QStringList files{data + "metadata/binary_tiff_first.eps",
                            data + "metadata/interchange_preview.epsi", data + "pdf/shading.pdf",
                            data + "svg/everything.svg"};
    const kit::Ran ran = kit::run(
        QStringLiteral(NORVEX_SOURCE_DIR "/scripts/damage-files"),
        QStringList{kit::norvexProgram()} + files + QStringList{"--cuts", "4", "--flips", "4"}, {}, 1000);
    QVERIFY2(!ran.crashed && ran.exitCode == 0, ran.out + ran.err);
    QVERIFY2(ran.out.contains("4 files, 64 runs"), ran.out);
  }
};

NORVEX_TEST(DamagedFilesTest)
#include "damaged_files_test.moc"
