// Whether a PDF has transfer functions that do something, and whether two have the same inks.
#include "worker/postscript/transfer_functions.h"

#include "kit/test_main.h"
#include "worker/kit/made_pdf.h"

using namespace norvex;
using namespace norvex::engine;

namespace {

const QByteArray kFunction = "<< /FunctionType 2 /Domain [0 1] /N 1 >>";

QByteArray withState(const QByteArray& state) {
  return kit::onePage("0 0 9 9 re f", "/MediaBox [0 0 9 9]",
                      {"<< /Type /ExtGState " + state + " >>", kFunction});
}

QByteArray withSpace(const QByteArray& space, const QList<QByteArray>& more = {}) {
  return kit::onePage("", "/MediaBox [0 0 9 9]", QList<QByteArray>{space} + more);
}

QByteArray tint(const QByteArray& name, const char* most, const char* kind = "Separation") {
  return QByteArray("[/") + kind + ' ' + name +
         " /DeviceGray << /FunctionType 2 /Domain [0 1] /C0 [1] /C1 [" + most + "] /N 1 >>]";
}

}  // namespace

class TransferFunctionsTest : public QObject {
  Q_OBJECT
 private slots:
  void functionsOfTheGraphicsStateAreTransferFunctions_data() {
    QTest::addColumn<QByteArray>("state");
    QTest::addColumn<bool>("has");
    QTest::newRow("none") << QByteArray("/LW 1") << false;
    QTest::newRow("a name") << QByteArray("/TR /Identity") << false;
    QTest::newRow("a name of the newer entry") << QByteArray("/TR2 /Default") << false;
    QTest::newRow("nothing") << QByteArray("/TR null") << false;
    QTest::newRow("a function") << QByteArray("/TR 6 0 R") << true;
    QTest::newRow("of the newer entry") << QByteArray("/TR2 6 0 R") << true;
    QTest::newRow("both, one of which is a name") << QByteArray("/TR /Identity /TR2 6 0 R") << true;
    QTest::newRow("four names") << QByteArray("/TR [/Identity /Identity /Identity /Identity]") << false;
    QTest::newRow("one of four") << QByteArray("/TR [/Identity /Identity 6 0 R /Identity]") << true;
    QTest::newRow("another entry that begins so") << QByteArray("/TRX 6 0 R") << false;
  }
  void functionsOfTheGraphicsStateAreTransferFunctions() {
    QFETCH(QByteArray, state);
    QTEST(hasTransferFunctions(withState(state)), "has");
  }

  void whatIsNoPdfHasNone() {
    QVERIFY(!hasTransferFunctions("no PDF /TR"));
    QVERIFY(!haveSameTints("no PDF", "no PDF"));
    QVERIFY(!haveSameTints(withSpace("null"), "no PDF"));
  }

  void inksAreTheSameByNameAndColour() {
    const QByteArray gold = withSpace(tint("/Gold", "0"));
    QVERIFY(haveSameTints(gold, gold));
    QVERIFY(haveSameTints(gold, withSpace(tint("/Gold", "0"), {"(more)"})));
    QVERIFY(!haveSameTints(gold, withSpace(tint("/Silver", "0"))));
    QVERIFY(!haveSameTints(gold, withSpace(tint("/Gold", "0.5"))));
    QVERIFY(!haveSameTints(gold, withSpace("null")));
    QVERIFY(haveSameTints(withSpace("null"), withSpace("[/ICCBased 4 0 R]")));
  }

  void inksWithinOtherSpacesCount() {
    const QByteArray plain = withSpace("null");
    QVERIFY(!haveSameTints(plain, withSpace(tint("[/Gold /Silver]", "0", "DeviceN"))));
    QVERIFY(!haveSameTints(plain, withSpace("[/Indexed " + tint("/Gold", "0") + " 1 <00ff>]")));
    // What is an object of its own is met there.
    QVERIFY(haveSameTints(withSpace("[/Indexed 6 0 R 1 <00ff>]", {tint("/Gold", "0")}),
                          withSpace(tint("/Gold", "0"))));
    // The shortest that is one.
    QVERIFY(haveSameTints(plain, withSpace("[/Separation /Gold /DeviceGray]")));
  }

  void programsAreComparedByAllButTheirLength() {
    const auto inkOf = [](const QByteArray& program, const QByteArray& entries) {
      return withSpace("[/Separation /Gold /DeviceGray 6 0 R]",
                       {kit::stream(program, "/FunctionType 4 /Domain [0 1] /Range [0 1] " + entries)});
    };
    QVERIFY(haveSameTints(inkOf("{ }", ""), inkOf("{ }", "")));
    QVERIFY(!haveSameTints(inkOf("{ }", ""), inkOf("{ 1 exch sub }", "")));
    QVERIFY(!haveSameTints(inkOf("{ }", ""), inkOf("{ }", "/Size [2]")));
  }
};

NORVEX_TEST(TransferFunctionsTest)
#include "transfer_functions_test.moc"
