#include "worker/web_fonts/web_faces.h"

#include <set>

#include "kit/test_main.h"
#include "protocol/limits.h"

using namespace norvex::engine;

namespace {

GlyphOutline triangle(double size) {
  return {{{OutlineStep::Move, {QPointF(0, 0)}},
           {OutlineStep::Line, {QPointF(size, 0)}},
           {OutlineStep::Line, {QPointF(0, size)}}},
          size};
}

WebFaces faces(unsigned glyphs) {
  WebFaces made(1000, 800, 200);
  for (unsigned i = 0; i < glyphs; ++i) made.add(i, triangle(100 + i));
  return made;
}

}  // namespace

class WebFacesTest : public QObject {
  Q_OBJECT
 private slots:
  void aCharacterOfTwoOutlinesNeedsTwoFaces() {
    WebFaces made = faces(2);
    QCOMPARE(made.show(0, {U'a'})->front().face, size_t(0));
    QCOMPARE(made.show(1, {U'a'})->front().face, size_t(1));
    QCOMPARE(made.show(0, {U'a'})->front().face, size_t(0));
    QCOMPARE(made.count(), size_t(2));
  }

  void whatFollowsTheFirstCharacterIsBlank() {
    WebFaces made = faces(1);
    const auto shown = *made.show(0, {U'f', U'f', U'i'});
    QCOMPARE(shown.size(), size_t(3));
    const auto outlineOf = [&](const FaceCharacter& c) {
      const WebFont font = made.font(c.face);
      return font.outlines.at(font.shownBy.at(c.character)).steps.size();
    };
    QCOMPARE(outlineOf(shown[0]), size_t(3));
    QCOMPARE(outlineOf(shown[1]), size_t(0));
    QCOMPARE(outlineOf(shown[2]), size_t(0));
  }

  void anOutlineWithoutMeaningGetsAPrivateCharacter() {
    WebFaces made = faces(2);
    const char32_t first = made.show(0, {})->front().character, second = made.show(1, {})->front().character;
    QVERIFY(first >= 0xE000 && first <= 0xF8FF && second != first);
    QCOMPARE(made.show(0, {})->front().character, first);
  }

  void moreCharactersThanAFontTakesGoIntoAnother() {
    WebFaces made = faces(1);
    const size_t all = norvex::limits::maximumWebCharacters + 1000;
    for (char32_t i = 0; i < all; ++i) QVERIFY(made.show(0, {0x100 + 2 * i}));
    QCOMPARE(made.count(), size_t(2));
    QCOMPARE(made.font(0).shownBy.size(), norvex::limits::maximumWebCharacters);
    QCOMPARE(made.font(1).shownBy.size(), size_t(1000));
    for (size_t face = 0; face < 2; ++face) QVERIFY(woffFont(made.font(face)));
    QCOMPARE(made.show(0, {0x100})->front().face, size_t(0));
  }

  void aCharacterOfManyOutlinesDoesNotMakeFacesWithoutEnd() {
    WebFaces made = faces(3000);
    for (unsigned i = 0; i < 3000; ++i) QVERIFY(made.show(i, {U'a'}));
    QVERIFY(made.count() <= norvex::limits::maximumWebFaces);
    std::set<std::pair<size_t, char32_t>> all;
    for (unsigned i = 0; i < 3000; ++i) {
      const FaceCharacter one = made.show(i, {U'a'})->front();
      all.insert({one.face, one.character});
    }
    QCOMPARE(all.size(), size_t(3000));
  }

  void anOutlineThatFitsNoFontIsRefused() {
    WebFaces made(1000, 800, 200);
    QVERIFY(!made.add(1, triangle(1e6)));
    QVERIFY(!made.knows(1));
    QVERIFY(made.add(2, triangle(10)));
    QVERIFY(!made.isBlank(2));
  }
};

NORVEX_TEST(WebFacesTest)
#include "web_faces_test.moc"
