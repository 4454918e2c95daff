// Documents that were opened and closed leave nothing behind.
#include <QDir>
#include <QFile>

#include <malloc.h>

#include "kit/test_main.h"
#include "picture/client/worker_service.h"

using namespace norvex;

namespace {

/// So large that one of them is more than what a heap moves by itself.
const QByteArray kSvg =
    "<svg xmlns='http://www.w3.org/2000/svg' width='40' height='20'><path d='M0 0H40V20Z' fill='red'/><!--" +
    QByteArray(10'000, 'x') + "--></svg>";
constexpr int kDocuments = 100;

struct Belongings {
  qsizetype descriptors = 0, threads = 0, descriptorsOfProgram = 0, childrenOfProgram = 0;
  size_t bytes = 0;  ///< that we have from malloc
};

qsizetype entries(const QString& folder) {
  return QDir(folder).entryList(QDir::AllEntries | QDir::System | QDir::NoDotAndDotDot).size();
}

qsizetype childrenOf(qint64 pid) {
  QFile list(QStringLiteral("/proc/%1/task/%1/children").arg(pid));
  if (!list.open(QIODevice::ReadOnly)) return -1;
  const QByteArray numbers = list.readAll().simplified();
  return numbers.isEmpty() ? 0 : numbers.count(' ') + 1;
}

}  // namespace

class ManyDocumentsTest : public QObject {
  Q_OBJECT

  WorkerService service_;

  void openAndClose(int count) {
    RenderRequest request;
    request.pixelSize = QSize(40, 20);
    for (int i = 0; i < count; ++i) {
      const auto process = service_.open(kSvg, PictureKind::Svg);
      QVERIFY(process->facts());
      QVERIFY(process->render(request));
    }
  }
  Belongings belongings() {
    const QString program = QStringLiteral("/proc/%1/").arg(service_.programProcessId());
    return {entries(QStringLiteral("/proc/self/fd")), entries(QStringLiteral("/proc/self/task")),
            entries(program + QStringLiteral("fd")), childrenOf(service_.programProcessId()),
            ::mallinfo2().uordblks};
  }

 private slots:
  void aHundredLeaveNoProcessDescriptorThreadOrMemory() {
    openAndClose(5);  // what is made once and kept is there by now
    Belongings before;
    // The last one's end is heard of a little later.
    QTRY_COMPARE((before = belongings()).childrenOfProgram, 0);
    openAndClose(kDocuments);
    QTRY_COMPARE(belongings().childrenOfProgram, 0);
    const Belongings after = belongings();
    QCOMPARE(after.descriptors, before.descriptors);
    QCOMPARE(after.threads, before.threads);
    QCOMPARE(after.descriptorsOfProgram, before.descriptorsOfProgram);
    // Not even a tenth of a document's bytes for each.
    QVERIFY2(after.bytes < before.bytes + size_t(kDocuments * kSvg.size() / 10),
             qPrintable(QString::number(after.bytes - before.bytes)));
  }
};

NORVEX_TEST(ManyDocumentsTest)
#include "many_documents_test.moc"
