#include "window/inspector_pages.h"

#include <QTabWidget>
#include <QVBoxLayout>
#include <QWidget>

#include <utility>

#include "base/localized_string.h"
#include "window/main_window_controller.h"

namespace norvex {
namespace {

/// Empty until it is seen.
class LatePage final : public QWidget {
 public:
  LatePage(MainWindowController& window, const InspectorPage& page)
      : window_(window), make_(page.make), column_(new QVBoxLayout(this)) {
    setObjectName(QLatin1String(page.name));
    column_->setContentsMargins(0, 0, 0, 0);
  }

 protected:
  void showEvent(QShowEvent* event) override {
    QWidget::showEvent(event);
    const auto make = std::exchange(make_, nullptr);
    if (!make) return;
    QWidget* contents = make(window_, this);
    column_->addWidget(contents);
    contents->show();  // what was there already is shown by now
  }

 private:
  MainWindowController& window_;
  QWidget* (*make_)(MainWindowController&, QWidget*);  ///< null: it was made
  QVBoxLayout* column_;
};

}  // namespace

std::span<const InspectorPage> inspectorPages() {
  return {};
}

void addInspectorPages(MainWindowController& window, std::span<const InspectorPage> pages) {
  for (const InspectorPage& page : pages)
    window.inspectorTabs->addTab(new LatePage(window, page), localizedString(page.title));
}

}  // namespace norvex
