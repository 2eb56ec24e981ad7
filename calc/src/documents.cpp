#include "documents.h"

#include <algorithm>
#include <com/sun/star/awt/AsyncCallback.hpp>
#include <com/sun/star/awt/XCallback.hpp>
#include <com/sun/star/container/XIndexAccess.hpp>
#include <com/sun/star/document/XUndoManagerSupplier.hpp>
#include <com/sun/star/lang/XComponent.hpp>
#include <com/sun/star/sheet/XCalculatable.hpp>
#include <com/sun/star/sheet/XCellRangeReferrer.hpp>
#include <com/sun/star/sheet/XCellRangesAccess.hpp>
#include <com/sun/star/sheet/XNamedRange.hpp>
#include <com/sun/star/sheet/XNamedRanges.hpp>
#include <com/sun/star/sheet/XSpreadsheetDocument.hpp>
#include <com/sun/star/table/XColumnRowRange.hpp>
#include <com/sun/star/text/XText.hpp>
#include <com/sun/star/util/XSearchable.hpp>
#include <cppuhelper/implbase1.hxx>
#include <mutex>
#include <rtl/ref.hxx>

#include "formula.h"
#include "texts.h"

namespace calvex::calc {

using css::beans::XPropertySet;
using css::uno::UNO_QUERY;
using css::uno::UNO_QUERY_THROW;
using rtl::OUString;

namespace {

constexpr char unitsName[] = "Calvex_Units";

Reference<css::uno::XComponentContext>& theContext() {
  static Reference<css::uno::XComponentContext> made;
  return made;
}

// The documents by their address, which no other document has while this one is open.
class OpenDocuments {
 public:
  [[nodiscard]] Document* find(const XPropertySet* model) {
    const std::scoped_lock lock(mutex_);
    const auto found = documents_.find(model);
    return found == documents_.end() ? nullptr : found->second.get();
  }
  Document& add(std::unique_ptr<Document> document) {
    const std::scoped_lock lock(mutex_);
    return *documents_.try_emplace(document->model().get(), std::move(document)).first->second;
  }
  void remove(const XPropertySet* model) {
    const std::scoped_lock lock(mutex_);
    documents_.erase(model);
  }

 private:
  std::mutex mutex_;
  std::map<const XPropertySet*, std::unique_ptr<Document>> documents_;
};

OpenDocuments& openDocuments() {
  static OpenDocuments documents;
  return documents;
}

// Comes back when nothing is being calculated.
class Refresh : public cppu::WeakImplHelper1<css::awt::XCallback> {
 public:
  static Refresh& instance() {
    static const rtl::Reference<Refresh> refresh(new Refresh);
    return *refresh;
  }

  /// `certainly`: the units are read again; else only where the places that have them changed.
  void order(const XPropertySet* model, bool certainly) {
    {
      const std::scoped_lock lock(mutex_);
      const auto [known, isNew] = waiting_.try_emplace(model, certainly);
      known->second = known->second || certainly;
      if (!isNew || waiting_.size() > 1) return;
    }
    css::awt::AsyncCallback::create(context())->addCallback(this, css::uno::Any());
  }

  void SAL_CALL notify(const css::uno::Any&) override {
    std::map<const XPropertySet*, bool> models;
    {
      const std::scoped_lock lock(mutex_);
      models.swap(waiting_);
    }
    for (const auto& [model, certainly] : models) {
      Document* const document = openDocuments().find(model);
      if (document == nullptr) continue;
      try {
        if (!certainly && !document->seemsChanged()) continue;
        if (!document->readUnits()) {
          rounds_.erase(model);
          continue;
        }
        // The calculation orders the next round; units that depend on results may never settle.
        constexpr int most = 10;
        if (++rounds_[model] > most) document->giveUp();
        document->calculate();
      } catch (const css::uno::Exception&) {
        // A document that is being closed.
      }
    }
  }

 private:
  std::mutex mutex_;  // undo managers call without the office's own lock
  std::map<const XPropertySet*, bool> waiting_;
  std::map<const XPropertySet*, int> rounds_;  // of one change, after each other
};

// Follows a document: what can be undone may change its units, and its end is the end of all that
// is known of it.
class Follower : public cppu::WeakImplHelper1<css::document::XUndoManagerListener> {
  using Event = css::document::UndoManagerEvent;
  using EventObject = css::lang::EventObject;

 public:
  explicit Follower(const Reference<XPropertySet>& model) : model_(model.get()) {
    Reference<css::lang::XComponent>(model, UNO_QUERY_THROW)->addEventListener(this);
    const Reference<css::document::XUndoManagerSupplier> supplier(model, UNO_QUERY);
    if (supplier.is()) supplier->getUndoManager()->addUndoManagerListener(this);
  }

  void SAL_CALL undoActionAdded(const Event&) override { look(); }
  void SAL_CALL actionUndone(const Event&) override { look(); }
  void SAL_CALL actionRedone(const Event&) override { look(); }
  void SAL_CALL allActionsCleared(const EventObject&) override { look(); }
  void SAL_CALL redoActionsCleared(const EventObject&) override {}
  void SAL_CALL resetAll(const EventObject&) override { look(); }
  void SAL_CALL enteredContext(const Event&) override {}
  void SAL_CALL enteredHiddenContext(const Event&) override {}
  void SAL_CALL leftContext(const Event&) override { look(); }
  void SAL_CALL leftHiddenContext(const Event&) override { look(); }
  void SAL_CALL cancelledContext(const Event&) override { look(); }
  void SAL_CALL disposing(const EventObject&) override { openDocuments().remove(model_); }

 private:
  const XPropertySet* model_;

  void look() const { Refresh::instance().order(model_, false); }
};

Reference<css::sheet::XNamedRanges> namesOf(const Reference<XPropertySet>& model) {
  return {model->getPropertyValue("NamedRanges"), UNO_QUERY_THROW};
}

// The text in the name; empty when there is none.
std::string keptUnits(const Reference<XPropertySet>& model) {
  const auto names = namesOf(model);
  if (!names->hasByName(unitsName)) return {};
  const Reference<css::sheet::XNamedRange> name(names->getByName(unitsName), UNO_QUERY_THROW);
  std::string content = toUtf8(name->getContent());
  // In workbooks for Excel the name refers to the cell with CALVEX.UNITS, which counts by itself.
  const Reference<css::sheet::XCellRangeReferrer> referrer(name, UNO_QUERY);
  const auto cells =
      referrer.is() ? referrer->getReferredCells() : Reference<css::table::XCellRange>();
  if (cells.is() &&
      toUtf8(cells->getCellByPosition(0, 0)->getFormula().toAsciiUpperCase()).find("UNITS(") !=
          std::string::npos) {
    return {};
  }
  std::erase(content, '"');
  return content;
}

// The cells whose formulas have CALVEX.UNITS.
std::vector<Reference<css::table::XCell>> unitCells(const Reference<XPropertySet>& model) {
  std::vector<Reference<css::table::XCell>> cells;
  const Reference<css::container::XIndexAccess> sheets(
      Reference<css::sheet::XSpreadsheetDocument>(model, UNO_QUERY_THROW)->getSheets(),
      UNO_QUERY_THROW);
  for (sal_Int32 i = 0; i < sheets->getCount(); ++i) {
    const Reference<css::util::XSearchable> sheet(sheets->getByIndex(i), UNO_QUERY_THROW);
    const auto search = sheet->createSearchDescriptor();
    search->setSearchString("CALVEX.UNITS(");
    constexpr sal_Int16 inFormulas = 0;
    search->setPropertyValue("SearchType", css::uno::Any(inFormulas));
    const auto found = sheet->findAll(search);
    for (sal_Int32 j = 0; found.is() && j < found->getCount(); ++j) {
      const Reference<css::table::XCellRange> range(found->getByIndex(j), UNO_QUERY_THROW);
      const Reference<css::container::XIndexAccess> rows(
          Reference<css::table::XColumnRowRange>(range, UNO_QUERY_THROW)->getRows(),
          UNO_QUERY_THROW);
      const Reference<css::container::XIndexAccess> columns(
          Reference<css::table::XColumnRowRange>(range, UNO_QUERY_THROW)->getColumns(),
          UNO_QUERY_THROW);
      for (sal_Int32 row = 0; row < rows->getCount(); ++row) {
        for (sal_Int32 column = 0; column < columns->getCount(); ++column) {
          cells.push_back(range->getCellByPosition(column, row));
        }
      }
    }
  }
  return cells;
}

}  // namespace

struct Document::Watched {
  Reference<css::table::XCell> cell;
  std::string contents;  ///< formula and value, for which the office calculates it if it has to

  [[nodiscard]] static std::string contentsOf(const Reference<css::table::XCell>& cell) {
    return toUtf8(cell->getFormula() + "\n" +
                  Reference<css::text::XText>(cell, UNO_QUERY_THROW)->getString());
  }
  [[nodiscard]] bool isAt(const std::string& name) const { return nameOf(cell) == name; }
};

Document::Document(const Reference<XPropertySet>& model) : model_(model) {}
Document::~Document() = default;

Units unitsOf(std::span<const Any> words) {
  std::vector<worksheet::Grid> grids;
  grids.reserve(words.size());
  for (const Any& word : words) grids.push_back(gridOf(word));
  return worksheet::unitsOf(grids);
}

bool Document::readUnits() {
  if (!model_.is()) return false;
  named_ = keptUnits(model_);
  Units units;
  std::string fault;
  const auto isFaulty = [&](const std::string& place, const char* what) {
    if (fault.empty()) fault = "The units of this document are not known. " + place + ": " + what;
  };
  try {
    units = worksheet::readUnits(named_);
  } catch (const Error& error) {
    isFaulty(std::string("The name ") + unitsName, error.what());
  }
  unitsOfCells_.clear();
  std::map<int, std::string> settingCells;
  bool isContradicted = false;
  for (const Reference<css::table::XCell>& cell : unitCells(model_)) {
    const std::string name = nameOf(cell);
    if (std::ranges::none_of(watched_, [&](const Watched& known) { return known.isAt(name); })) {
      watched_.push_back({cell, {}});
    }
    try {
      for (const std::vector<Any>& words : unitCallsOf(model_, cell)) {
        for (const auto& [group, unit] : unitsOf(words)) {
          const auto [known, isNew] = unitsOfCells_.try_emplace(group, unit);
          isContradicted = isContradicted || (!isNew && known->second != unit);
          known->second = unit;
          settingCells[group] = name;
        }
      }
    } catch (const Error& error) {
      isFaulty(name, error.what());
    }
  }
  for (Watched& watched : watched_) watched.contents = Watched::contentsOf(watched.cell);
  if (hasGivenUp_ && (!fault.empty() || isAsAtGivingUp())) return false;
  for (const auto& [group, unit] : unitsOfCells_) units.insert_or_assign(group, unit);
  if (!isContradicted) settingCells.clear();
  if (units == units_ && fault == fault_ && settingCells == settingCells_) return false;
  units_ = units;
  fault_ = fault;
  settingCells_ = settingCells;
  engine_ = std::make_unique<Engine>();
  worksheet::setUnits(*engine_, units_);
  return true;
}

void Document::giveUp() {
  hasGivenUp_ = true;
  contentsAtGivingUp_.clear();
  fault_ =
      "The units of this document do not settle: a cell with CALVEX.UNITS chooses them by a "
      "result that they change.";
}

// Without units nothing has results, so that all rests until somebody changes it.
bool Document::isAsAtGivingUp() {
  std::string contents = named_;
  for (const Watched& watched : watched_) contents += '\n' + watched.contents;
  if (contentsAtGivingUp_.empty()) contentsAtGivingUp_ = contents;
  hasGivenUp_ = contents == contentsAtGivingUp_;
  return hasGivenUp_;
}

void Document::calculate() {
  Reference<css::sheet::XCalculatable>(model_, UNO_QUERY_THROW)->calculateAll();
}

std::string Document::overruled(const Units& units) const {
  std::string text;
  for (const auto& [group, unit] : units) {
    const auto cell = settingCells_.find(group);
    const auto holding = units_.find(group);
    if (cell == settingCells_.end() || holding == units_.end() || holding->second == unit) continue;
    text +=
        " (" + worksheet::keywordOf(group) + " is " + holding->second + " by " + cell->second + ")";
  }
  return text;
}

bool Document::seemsChanged() const {
  return keptUnits(model_) != named_ || std::ranges::any_of(watched_, [](const Watched& watched) {
           return Watched::contentsOf(watched.cell) != watched.contents;
         });
}

void Document::keepUnits(const Units& units) {
  const std::string text = unitsText(units);
  if (text == named_) return;
  const auto names = namesOf(model_);
  const OUString content = toOffice('"' + text + '"');
  if (names->hasByName(unitsName)) {
    const Reference<css::sheet::XNamedRange> name(names->getByName(unitsName), UNO_QUERY_THROW);
    name->setContent(content);
  } else {
    names->addNewByName(unitsName, content, {}, 0);
  }
  if (readUnits()) calculate();
}

Document& documentOf(const Reference<XPropertySet>& model) {
  static Document none{Reference<XPropertySet>()};
  if (Document* const known = openDocuments().find(model.get())) return *known;
  if (!Reference<css::sheet::XSpreadsheetDocument>(model, UNO_QUERY).is()) return none;
  Document& document = openDocuments().add(std::make_unique<Document>(model));
  const Reference<css::document::XUndoManagerListener> follower(new Follower(model));
  document.readUnits();
  return document;
}

void refreshSoon(const Reference<XPropertySet>& model) {
  if (model.is()) Refresh::instance().order(model.get(), true);
}

void setContext(const Reference<css::uno::XComponentContext>& context) { theContext() = context; }

const Reference<css::uno::XComponentContext>& context() { return theContext(); }

}  // namespace calvex::calc
