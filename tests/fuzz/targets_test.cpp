// Each parser of bytes from outside, and each engine with whole documents, over its seeds: whole, cut, and
// damaged. The damage is the same in every run.
#include "fuzz/targets.h"

#include <QLoggingCategory>
#include <QSet>

#include <algorithm>
#include <random>
#include <string>

#include "kit/test_main.h"

using namespace norvex;
using fuzz::Target;

namespace {

/// How many damaged seeds each target is fed in all, for longer runs than the ordinary one.
constexpr const char* kExecutions = "NORVEX_FUZZ_EXECUTIONS";

const QList<Target>& allTargets() {
  static const QList<Target> all = fuzz::argumentsTargets() + fuzz::checkTargets() + fuzz::documentTargets() +
                                   fuzz::fontsTargets() + fuzz::metadataTargets() + fuzz::metafileTargets() +
                                   fuzz::pdfTargets() + fuzz::postscriptTargets() + fuzz::printTargets() +
                                   fuzz::protocolTargets() + fuzz::svgTargets() + fuzz::tiffTargets() +
                                   fuzz::webFontsTargets();
  return all;
}

/// A few changes of the kind that libFuzzer makes: other bytes, bytes that are gone, doubled, or brought from
/// elsewhere in the seed.
QByteArray damaged(QByteArray bytes, std::mt19937& random) {
  const auto below = [&](qsizetype limit) {
    return qsizetype(random() % std::max<quint64>(1, quint64(limit)));
  };
  for (qsizetype change = 1 + below(4); change > 0 && !bytes.isEmpty(); --change) {
    const qsizetype at = below(bytes.size());
    const qsizetype length = 1 + below(std::min<qsizetype>(16, bytes.size() - at));
    switch (below(5)) {
      case 0:
        bytes[at] = char(random());
        break;
      case 1:
        bytes[at] = char(bytes[at] ^ (1 << below(8)));
        break;
      case 2:
        bytes.remove(at, length);
        break;
      case 3:
        bytes.insert(at, bytes.mid(at, length));
        break;
      default:
        bytes.insert(at, bytes.mid(below(bytes.size()), length));
    }
  }
  return bytes;
}

/// Damaged copies of each of so many seeds.
int roundsOf(const Target& target, qsizetype seeds) {
  bool isAsked = false;
  const int executions = qEnvironmentVariableIntValue(kExecutions, &isAsked);
  return isAsked ? int((executions + seeds - 1) / seeds) : target.rounds;
}

void addTargets() {
  QTest::addColumn<int>("index");
  for (int i = 0; i < allTargets().size(); ++i) QTest::newRow(allTargets()[i].name) << i;
}

}  // namespace

class TargetsTest : public QObject {
  Q_OBJECT
 public:
  TargetsTest() {
    // Longer runs take longer than Qt Test lets a function take.
    if (qEnvironmentVariableIsSet(kExecutions)) qputenv("QTEST_FUNCTION_TIMEOUT", "86400000");
  }

 private slots:
  void initTestCase() { QLoggingCategory::setFilterRules("norvex.*=false"); }
  void cleanupTestCase() { QLoggingCategory::setFilterRules(QString()); }

  void everyParserOfBytesFromOutsideIsFed() {
    QSet<QByteArray> names;
    for (const Target& target : allTargets()) names << target.name;
    for (const char* name : {"messages",         "replies",        "cbor_fields",
                             "page_contents",    "eps_rules",      "eps_repair",
                             "profile",          "svg_inspection", "gzip_inflate",
                             "font_thinning",    "page_tree",      "annotation_drawings",
                             "colour_operators", "svg_drawing",    "bare_jpeg",
                             "svg_text",         "svg_tokens",     "svg_cutting",
                             "svg_stretching",   "tiff_preview",   "print_settings",
                             "arguments",        "eps_header",     "bounding_box",
                             "source_text",      "text_encoding",  "type_identification",
                             "eps_source",       "procedure_sets", "page_text",
                             "metafile_preview", "page_inks",      "psd_plates",
                             "page_names",       "page_excerpts",  "bitmap_runs",
                             "web_faces",        "eps_document",   "pdf_document",
                             "svg_document",     "artwork",        "previewed_document"})
      QVERIFY2(names.remove(name), name);
    QVERIFY(names.isEmpty());
  }

  void theSeedsReachTheParser_data() { addTargets(); }
  void theSeedsReachTheParser() {
    QFETCH(int, index);
    const Target& target = allTargets()[index];
    int taken = 0;
    for (const QByteArray& seed : target.seeds()) taken += fuzz::feed(target, seed) ? 1 : 0;
    QVERIFY(taken > 0);
  }

  void cutSeedsAreHarmless_data() { addTargets(); }
  void cutSeedsAreHarmless() {
    QFETCH(int, index);
    const Target& target = allTargets()[index];
    const int parts = std::min(64, target.rounds);
    for (const QByteArray& seed : target.seeds())
      for (int part = 0; part < parts; ++part) fuzz::feed(target, seed.first(seed.size() * part / parts));
  }

  void damagedSeedsAreHarmless_data() { addTargets(); }
  void damagedSeedsAreHarmless() {
    QFETCH(int, index);
    const Target& target = allTargets()[index];
    const std::string name = target.name;
    std::seed_seq sequence(name.begin(), name.end());
    std::mt19937 random(sequence);
    const QList<QByteArray> seeds = target.seeds();
    const int rounds = roundsOf(target, seeds.size());
    for (const QByteArray& seed : seeds)
      for (int round = 0; round < rounds; ++round) fuzz::feed(target, damaged(seed, random));
  }
};

NORVEX_TEST(TargetsTest)
#include "targets_test.moc"
