#include "units_page.h"

#include <algorithm>
#include <com/sun/star/awt/XControlContainer.hpp>
#include <com/sun/star/awt/XFixedText.hpp>
#include <com/sun/star/awt/XListBox.hpp>
#include <com/sun/star/awt/XWindow.hpp>
#include <cppuhelper/supportsservice.hxx>

#include "dialogs.h"
#include "texts.h"
#include "unit_lists.h"

namespace calvex::calc {

using css::uno::Sequence;
using css::uno::UNO_QUERY_THROW;
using rtl::OUString;

namespace {

// The events of the page's controls, and that of the page itself.
constexpr char quantityChosen[] = "quantityChosen";
constexpr char unitChosen[] = "unitChosen";
constexpr char external[] = "external_event";

// True while it lives.
class Showing {
 public:
  explicit Showing(bool& flag) : flag_(flag) { flag_ = true; }
  ~Showing() { flag_ = false; }
  Showing(const Showing&) = delete;
  Showing& operator=(const Showing&) = delete;

 private:
  bool& flag_;
};

class Page {
 public:
  explicit Page(const Reference<css::awt::XWindow>& window)
      : controls_(window, UNO_QUERY_THROW),
        quantities_(control("quantities"), UNO_QUERY_THROW),
        units_(control("units"), UNO_QUERY_THROW) {}

  [[nodiscard]] int group() const { return quantities_->getSelectedItemPos(); }
  // Negative for none.
  [[nodiscard]] int unit() const { return units_->getSelectedItemPos(); }
  [[nodiscard]] OUString unitName() const { return units_->getSelectedItem(); }

  void showQuantities(const Units& units) const {
    const int chosen = group();
    quantities_->removeItems(0, quantities_->getItemCount());
    for (int i = 0; i < groupCount(); ++i) {
      quantities_->addItem(toOffice(groupName(i) + ": ") + nameOf(units, i),
                           static_cast<sal_Int16>(i));
    }
    quantities_->selectItemPos(static_cast<sal_Int16>(std::max(chosen, 0)), true);
  }
  void showUnits(const Units& units, bool canChoose) const {
    units_->removeItems(0, units_->getItemCount());
    units_->addItems(unitNames(group()), 0);
    units_->selectItem(nameOf(units, group()), true);
    Reference<css::awt::XWindow>(units_, UNO_QUERY_THROW)->setEnable(canChoose);
  }
  void say(const std::string& text) const {
    Reference<css::awt::XFixedText>(control("cells"), UNO_QUERY_THROW)->setText(toOffice(text));
  }

 private:
  [[nodiscard]] Reference<css::awt::XControl> control(const char* name) const {
    return controls_->getControl(OUString::createFromAscii(name));
  }
  static OUString nameOf(const Units& units, int group) {
    const auto found = units.find(group);
    return found == units.end() ? unitNames(group)[0] : toOffice(found->second);
  }

  Reference<css::awt::XControlContainer> controls_;
  Reference<css::awt::XListBox> quantities_;
  Reference<css::awt::XListBox> units_;
};

}  // namespace

sal_Bool UnitsPage::callHandlerMethod(const Reference<css::awt::XWindow>& window,
                                      const css::uno::Any& event, const OUString& method) {
  if (isShowing_) return true;
  const Showing showing(isShowing_);
  const Page page(window);
  Document* const document = currentDocument();
  const auto canChoose = [&] {
    return document != nullptr && !document->unitsOfCells().contains(page.group());
  };
  OUString what;
  if (method == quantityChosen) {
    page.showUnits(chosen_, canChoose());
  } else if (method == unitChosen) {
    if (page.unit() < 0) return true;
    if (page.unit() == 0) {
      chosen_.erase(page.group());
    } else {
      chosen_[page.group()] = toUtf8(page.unitName());
    }
    page.showQuantities(chosen_);
  } else if (method != external || !(event >>= what)) {
    return false;
  } else if (what == "ok") {
    if (document == nullptr) return true;
    Units kept = chosen_;
    for (const auto& ofCell : document->unitsOfCells()) kept.erase(ofCell.first);
    document->keepUnits(kept);
  } else {  // "initialize" or "back"
    chosen_ = document == nullptr ? Units{} : document->units();
    page.say(document == nullptr ? "Units belong to a spreadsheet: open it first."
                                 : setByCells(*document));
    page.showQuantities(chosen_);
    page.showUnits(chosen_, canChoose());
  }
  return true;
}

Sequence<OUString> UnitsPage::getSupportedMethodNames() {
  const OUString names[] = {external, quantityChosen, unitChosen};
  return {names, std::size(names)};
}

OUString UnitsPage::getImplementationName() { return serviceName; }

sal_Bool UnitsPage::supportsService(const OUString& name) {
  return cppu::supportsService(this, name);
}

Sequence<OUString> UnitsPage::getSupportedServiceNames() {
  const OUString name(serviceName);
  return {&name, 1};
}

}  // namespace calvex::calc
