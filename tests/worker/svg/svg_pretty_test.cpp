// Indented SVG text: what moves and what stays.
#include "worker/svg/svg_pretty.h"

#include <QDir>
#include <QXmlStreamReader>

#include "kit/test_main.h"
#include "worker/svg/svg_kit.h"

using namespace norvex;
using namespace norvex::engine;
using norvex::kit::drawn;
using norvex::kit::OpenSvg;

namespace {

/// Elements, attributes and texts in order, without the white space that means nothing.
QStringList canonical(const QByteArray& svg) {
  QStringList items;
  QXmlStreamReader reader(svg);
  reader.setNamespaceProcessing(false);
  while (!reader.atEnd()) {
    const auto token = reader.readNext();
    if (token == QXmlStreamReader::Characters && reader.isWhitespace()) continue;
    QString item =
        reader.tokenString() + ' ' + reader.qualifiedName().toString() + ' ' + reader.text().toString();
    for (const QXmlStreamAttribute& attribute : reader.attributes())
      item += ' ' + attribute.qualifiedName().toString() + '=' + attribute.value().toString();
    items << item;
  }
  if (reader.hasError()) items << "error: " + reader.errorString();
  return items;
}

QByteArray testFile(const QString& name) {
  QFile file(QStringLiteral(NORVEX_SOURCE_DIR "/tests/data/svg/") + name);
  return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

}  // namespace

class SvgPrettyTest : public QObject {
  Q_OBJECT
 private slots:
  void everyChildHasALine() {
    QCOMPARE(prettySvg("<svg><g><rect/><circle/></g></svg>"),
             QByteArray("<svg>\n  <g>\n    <rect/>\n    <circle/>\n  </g>\n</svg>\n"));
  }

  void theOldIndentationGoes() {
    QCOMPARE(prettySvg("<svg>\n\n\t\t<g>  <rect/>\n</g></svg>\n\n"), prettySvg("<svg><g><rect/></g></svg>"));
  }

  void theResultIsStable() {
    const QByteArray once = prettySvg(testFile("everything.svg"));
    QVERIFY(!once.isEmpty());
    QCOMPARE(prettySvg(once), once);
  }

  void whatIsBeforeTheRootStays() {
    const QByteArray prolog =
        "<?xml version=\"1.0\" standalone='no'?>\n<!-- a\n  b -->\n"
        "<!DOCTYPE svg PUBLIC \"a>b\" \"c\" [\n\t<!ENTITY ns 'http://x/'>\n  <!-- ]> -->\n]>\n<?php 1 > 2 "
        "?>\n";
    QCOMPARE(prettySvg(prolog + "<svg/>"), prolog + "<svg/>\n");
  }

  void entitiesStayUnexpanded() {
    const QByteArray svg = "<!DOCTYPE svg [<!ENTITY a 'b'>]>\n<svg x=\"&a;\">\n  <g>&a;</g>\n</svg>\n";
    QCOMPARE(prettySvg(svg), svg);
  }

  void contentThatMeansSomethingStays_data() {
    QTest::addColumn<QByteArray>("element");
    QTest::newRow("text") << QByteArray("<text>\n a <tspan> b</tspan> <tspan>c</tspan>\n</text>");
    QTest::newRow("text with tspans alone") << QByteArray("<text><tspan>a</tspan><tspan>b</tspan></text>");
    QTest::newRow("prefixed text") << QByteArray("<s:text>  <s:tspan/>  </s:text>");
    QTest::newRow("title") << QByteArray("<title> a\n  b </title>");
    QTest::newRow("style") << QByteArray("<style>\n  a { }\n\tb { }\n</style>");
    QTest::newRow("script") << QByteArray("<script><![CDATA[ if (a < b && c > d) { } ]]></script>");
    QTest::newRow("mixed") << QByteArray("<g>words <b> and </b> more</g>");
    QTest::newRow("cdata") << QByteArray("<g> <![CDATA[ <x> ]]> </g>");
    QTest::newRow("foreign object") << QByteArray("<foreignObject><p><i>a</i> <b>b</b></p></foreignObject>");
    QTest::newRow("preserved") << QByteArray("<g xml:space=\"preserve\"> <rect/>\n<rect/> </g>");
    QTest::newRow("blank leaf") << QByteArray("<dc:title> </dc:title>");
    QTest::newRow("blank leaf of another vocabulary") << QByteArray("<x:y>\n </x:y>");
    QTest::newRow("empty leaf") << QByteArray("<g></g>");
    QTest::newRow("comment") << QByteArray("<!--\n\tkept\n as is -->");
    QTest::newRow("instruction") << QByteArray("<?x  y\n z?>");
    QTest::newRow("attributes on lines") << QByteArray("<path\n   d='M 0 0\n L 1 1'\n   id = \"a>b\"  />");
    QTest::newRow("non-breaking space") << QByteArray("<g>\xc2\xa0<rect/></g>");
  }
  void contentThatMeansSomethingStays() {
    QFETCH(QByteArray, element);
    QCOMPARE(prettySvg("<svg>" + element + "</svg>"), "<svg>\n  " + element + "\n</svg>\n");
  }

  void theLineEndIsTheDocumentsOwn() {
    QCOMPARE(prettySvg("<svg>\r\n<g/></svg>"), QByteArray("<svg>\r\n  <g/>\r\n</svg>\r\n"));
  }

  void aDeepDocumentIsNoTrouble() {
    const QByteArray svg = QByteArray("<g>").repeated(400) + "<rect/>" + QByteArray("</g>").repeated(400);
    QCOMPARE(canonical(prettySvg(svg)), canonical(svg));
  }

  void structureAndPictureStay_data() {
    QTest::addColumn<QString>("name");
    const QStringList names = QDir(NORVEX_SOURCE_DIR "/tests/data/svg").entryList({"*.svg"}, QDir::Files);
    QVERIFY(names.size() >= 3);
    for (const QString& name : names) QTest::newRow(qPrintable(name)) << name;
  }
  void structureAndPictureStay() {
    QFETCH(QString, name);
    const QByteArray source = testFile(name);
    OpenSvg before(source);
    QVERIFY(before.ok());
    const QByteArray pretty = before->svg({})->bytes;
    QCOMPARE(canonical(pretty), canonical(source));
    OpenSvg after(pretty);
    QVERIFY(after.ok());
    const Result<QImage> a = drawn(*before.result->get(), 2), b = drawn(*after.result->get(), 2);
    QVERIFY(a && b);
    QCOMPARE(*a, *b);
  }
};

NORVEX_TEST(SvgPrettyTest)
#include "svg_pretty_test.moc"
