// Neighbours without an appearance are drawn together, onto a page of their own without contents; that page
// becomes the appearance of the first of them.
#include "worker/pdf/annotation_drawings.h"

#include <qpdf/QPDFAnnotationObjectHelper.hh>
#include <qpdf/QPDFFormFieldObjectHelper.hh>
#include <qpdf/QPDFPageDocumentHelper.hh>
#include <qpdf/QPDFPageObjectHelper.hh>

#include <algorithm>
#include <vector>

#include "protocol/limits.h"
#include "worker/pdf/pdf_numbers.h"
#include "worker/pdf/pdf_render.h"
#include "worker/pdf/pdf_writing.h"

namespace norvex::engine {
namespace {

constexpr double kUnitsPerPoint = 100;  // lines are drawn at least a unit wide

using Annotations = std::vector<QPDFObjectHandle>;

bool hasSubtype(QPDFObjectHandle annotation, const char* name) {
  return annotation.getKey("/Subtype").isNameAndEquals(name);
}

// The reader's own drawing of a field goes before the one of a file that asks for that.
bool isDrawnByReader(QPDFObjectHandle annotation, bool drawsFields) {
  if (hasSubtype(annotation, "/Popup")) return false;
  if (hasSubtype(annotation, "/Widget"))
    return drawsFields || !annotation.getKey("/AP").isDictionary();  // an unset check box shows nothing
  return !QPDFAnnotationObjectHelper(annotation).getAppearanceStream("/N").isStream();
}

bool isHidden(QPDFObjectHandle annotation) {
  return QPDFAnnotationObjectHelper(annotation).getFlags() & (an_hidden | an_no_view);
}

// The annotation without its ties to other objects: those would take the whole document along.
QPDFObjectHandle untied(QPDFObjectHandle annotation) {
  QPDFObjectHandle copy = annotation.shallowCopy();
  if (hasSubtype(annotation, "/Widget")) {
    QPDFFormFieldObjectHelper field(annotation);
    for (const char* key : {"/FT", "/Ff", "/V", "/DV", "/DA", "/Q", "/MaxLen", "/Opt", "/I", "/TI"})
      if (QPDFObjectHandle value = field.getInheritableFieldValue(key); !value.isNull())
        copy.replaceKey(key, value);
  }
  for (const char* key : {"/P", "/Parent", "/Kids", "/Popup", "/IRT", "/A", "/AA", "/Dest", "/OC"})
    copy.removeKey(key);
  return copy;
}

QPDFObjectHandle rectangleOf(const QRectF& box) {
  return QPDFObjectHandle::newFromRectangle({box.left(), box.top(), box.right(), box.bottom()});
}

// A document of pages without contents, a page for each run of annotations.
class Sheets {
 public:
  Sheets(QPDF& source, const PageGeometry& geometry, QPDFObjectHandle interactiveForm)
      : source_(source), geometry_(geometry), fields_(QPDFObjectHandle::newArray()) {
    sheets_.setSuppressWarnings(true);
    sheets_.emptyPDF();
    if (interactiveForm.isDictionary()) keepForm(interactiveForm);
  }

  void add(const Annotations& run) {
    QPDFObjectHandle annotations = QPDFObjectHandle::newArray();
    for (const QPDFObjectHandle& annotation : run) {
      annotations.appendItem(copied(untied(annotation)));
      if (hasSubtype(annotation, "/Widget"))
        fields_.appendItem(annotations.getArrayItem(annotations.getArrayNItems() - 1));
    }
    QPDFObjectHandle page = sheets_.makeIndirectObject(QPDFObjectHandle::newDictionary());
    page.replaceKey("/Type", QPDFObjectHandle::newName("/Page"));
    page.replaceKey("/MediaBox", rectangleOf(geometry_.box));
    page.replaceKey("/Rotate", QPDFObjectHandle::newInteger(geometry_.rotation));
    page.replaceKey("/UserUnit", QPDFObjectHandle::newReal(decimal(geometry_.userUnit, 6).toStdString()));
    page.replaceKey("/Resources", QPDFObjectHandle::newDictionary());
    page.replaceKey("/Annots", annotations);
    QPDFPageDocumentHelper(sheets_).addPage(page, false);
  }

  [[nodiscard]] QByteArray written() { return writePdf(sheets_); }

 private:
  QPDFObjectHandle copied(QPDFObjectHandle object) {
    return sheets_.copyForeignObject(source_.makeIndirectObject(object));
  }

  void keepForm(QPDFObjectHandle interactiveForm) {
    QPDFObjectHandle form = QPDFObjectHandle::newDictionary();
    for (const char* key : {"/DR", "/DA", "/Q", "/NeedAppearances"})
      if (interactiveForm.hasKey(key)) form.replaceKey(key, interactiveForm.getKey(key));
    QPDFObjectHandle own = copied(form);
    own.replaceKey("/Fields", fields_);
    sheets_.getRoot().replaceKey("/AcroForm", own);
  }

  QPDF& source_;
  const PageGeometry& geometry_;
  QPDF sheets_;
  QPDFObjectHandle fields_;
};

// The sheets, drawn; in the page's user space.
Result<std::vector<QPDFObjectHandle>> drawn(QPDF& qpdf, const QByteArray& sheets,
                                            const PageGeometry& geometry) {
  const QRectF& box = geometry.box;
  const double scale =
      std::min(kUnitsPerPoint, limits::maximumAnnotationSheet / std::max(box.width(), box.height()));
  const AffineTransform userToSheet =
      AffineTransform::fromTranslate(-box.left(), -box.bottom()) * AffineTransform::fromScale(scale, -scale);
  PdfRenderer renderer(sheets);
  const Result<QByteArray> vectors = renderer.vectors(
      geometry.shownSize(), geometry.userToPicture().inverted() * userToSheet, box.size() * scale);
  if (!vectors) return vectors.error();
  QPDF drawing;
  drawing.setSuppressWarnings(true);
  drawing.setImmediateCopyFrom(true);
  drawing.processMemoryFile("drawing", vectors->constData(), size_t(vectors->size()));
  std::vector<QPDFObjectHandle> forms;
  for (const QPDFObjectHandle& page : drawing.getAllPages()) {
    QPDFObjectHandle form = qpdf.copyForeignObject(QPDFPageObjectHelper(page).getFormXObjectForPage(false));
    QPDFObjectHandle dictionary = form.getDict();
    dictionary.removeKey("/Group");  // a highlight multiplies with what is below it
    const AffineTransform sheetToUser = AffineTransform::fromScale(1 / scale, 1 / scale) *
                                        AffineTransform::fromTranslate(box.left(), box.top());
    dictionary.replaceKey("/Matrix",
                          QPDFObjectHandle::parse("[" + matrixText(sheetToUser).toStdString() + "]"));
    forms.push_back(form);
  }
  return forms;
}

QPDFObjectHandle drawnAnnotation(QPDFObjectHandle form, const QRectF& box) {
  QPDFObjectHandle appearances = QPDFObjectHandle::newDictionary();
  appearances.replaceKey("/N", form);
  QPDFObjectHandle annotation = QPDFObjectHandle::newDictionary();
  annotation.replaceKey("/Type", QPDFObjectHandle::newName("/Annot"));
  annotation.replaceKey("/Subtype", QPDFObjectHandle::newName("/Stamp"));
  annotation.replaceKey("/Rect", rectangleOf(box));
  annotation.replaceKey("/AP", appearances);
  return annotation;
}

// Flattening does not ask for the layer of an annotation, but whoever draws the result does for that of a
// form.
void takeLayer(QPDFObjectHandle annotation, QPDFObjectHandle layer) {
  QPDFObjectHandle appearance = QPDFAnnotationObjectHelper(annotation).getAppearanceStream("/N");
  if (!appearance.isStream() || !layer.isDictionary()) return;
  QPDFObjectHandle own = appearance.copyStream();
  own.getDict().replaceKey("/OC", layer);
  QPDFObjectHandle appearances = QPDFObjectHandle::newDictionary();
  appearances.replaceKey("/N", own);
  annotation.replaceKey("/AP", appearances);
}

/// The drawings, in order: annotations with an appearance stand alone, others in runs.
struct Step {
  Annotations run;
  bool isSheet = false;
};

std::vector<Step> stepsOf(QPDFObjectHandle annotations, bool drawsFields) {
  std::vector<Step> steps;
  bool runIsOpen = false;
  for (QPDFObjectHandle annotation : annotations.aitems()) {
    if (!annotation.isDictionary() || hasSubtype(annotation, "/Link") || isHidden(annotation)) continue;
    const bool isSheet = isDrawnByReader(annotation, drawsFields);
    const bool hasLayer = annotation.getKey("/OC").isDictionary();
    if (!isSheet || hasLayer || !runIsOpen) steps.push_back({{}, isSheet});
    steps.back().run.push_back(annotation);
    runIsOpen = isSheet && !hasLayer;
  }
  return steps;
}

}  // namespace

Result<void> completeAnnotations(QPDF& qpdf, QPDFObjectHandle page, const PageGeometry& geometry,
                                 QPDFObjectHandle interactiveForm) {
  QPDFObjectHandle annotations = page.getKey("/Annots");
  if (!annotations.isArray()) return {};
  QPDFObjectHandle needed = interactiveForm.isDictionary() ? interactiveForm.getKey("/NeedAppearances")
                                                           : QPDFObjectHandle::newNull();
  const std::vector<Step> steps = stepsOf(annotations, needed.isBool() && needed.getBoolValue());
  std::vector<QPDFObjectHandle> forms;
  if (std::any_of(steps.begin(), steps.end(), [](const Step& step) { return step.isSheet; })) {
    Sheets sheets(qpdf, geometry, interactiveForm);
    for (const Step& step : steps)
      if (step.isSheet) sheets.add(step.run);
    Result<std::vector<QPDFObjectHandle>> drawings = drawn(qpdf, sheets.written(), geometry);
    if (!drawings) return drawings.error();
    forms = std::move(*drawings);
  }
  QPDFObjectHandle complete = QPDFObjectHandle::newArray();
  size_t sheet = 0;
  for (const Step& step : steps) {
    QPDFObjectHandle first = step.run.front();
    QPDFObjectHandle annotation = step.isSheet ? drawnAnnotation(forms.at(sheet++), geometry.box) : first;
    takeLayer(annotation, first.getKey("/OC"));
    complete.appendItem(annotation);
  }
  page.replaceKey("/Annots", complete);
  return {};
}

}  // namespace norvex::engine
