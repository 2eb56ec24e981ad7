/// \file
/// The open documents, each with an engine and with units of its own.
///
/// A document's units are kept in it: in the name Calvex_Units, which the dialog writes, and in the
/// cells with CALVEX.UNITS, which have the last word.
#pragma once

#include <calvex/calvex.h>

#include <calvex/calvex.hpp>
#include <com/sun/star/beans/XPropertySet.hpp>
#include <com/sun/star/uno/XComponentContext.hpp>
#include <map>
#include <memory>
#include <span>
#include <string>
#include <vector>

#include "worksheet/units.h"

namespace calvex::calc {

namespace css = com::sun::star;
using css::uno::Reference;

using worksheet::Units;
using worksheet::unitsText;

/// The units that pairs of a group's and a unit's words name; throws `calvex::Error`.
[[nodiscard]] Units unitsOf(std::span<const css::uno::Any> words);

/// What one document has.
class Document {
 public:
  explicit Document(const Reference<css::beans::XPropertySet>& model);
  ~Document();
  Document(const Document&) = delete;
  Document& operator=(const Document&) = delete;

  [[nodiscard]] calvex_engine* engine() { return engine_->handle(); }
  [[nodiscard]] const Units& units() const { return units_; }
  /// The units that cells set.
  [[nodiscard]] const Units& unitsOfCells() const { return unitsOfCells_; }
  /// Why the units are not known: a cell or the name sets what is none, or cells never settle. No
  /// member is computed then, since its numbers would be of other units than meant. Empty mostly.
  [[nodiscard]] const std::string& fault() const { return fault_; }
  /// Says of units that a cell sets and another cell, which comes later, sets otherwise, where the
  /// other stands: " (P is bara by Sheet2.A1)".
  [[nodiscard]] std::string overruled(const Units& units) const;
  [[nodiscard]] const Reference<css::beans::XPropertySet>& model() const { return model_; }

  /// Reads the units that the document has now; answers whether they are others than before.
  bool readUnits();
  /// Whether a place that had units has another text now.
  [[nodiscard]] bool seemsChanged() const;
  /// Keeps units in the document's name, as a step that can be undone, and calculates all with
  /// them; the same ones are none.
  void keepUnits(const Units& units);
  /// Calculates all of it.
  void calculate();
  /// The units have changed again and again by their own effect: cells choose units by results.
  void giveUp();

 private:
  struct Watched;
  [[nodiscard]] bool isAsAtGivingUp();
  Reference<css::beans::XPropertySet> model_;
  std::unique_ptr<Engine> engine_ = std::make_unique<Engine>();
  Units units_;
  Units unitsOfCells_;
  std::map<int, std::string> settingCells_;  ///< the last to set a group's unit
  std::string fault_;
  bool hasGivenUp_ = false;
  std::string contentsAtGivingUp_;  ///< of what has units
  std::string named_;               ///< the text of the document's name
  std::vector<Watched> watched_;
};

/// The document of a call; null has model units. The reference holds until the document is closed.
[[nodiscard]] Document& documentOf(const Reference<css::beans::XPropertySet>& model);

/// Reads a document's units again soon, when nothing is being calculated, and then calculates all
/// of it if they are others.
void refreshSoon(const Reference<css::beans::XPropertySet>& model);

/// The context that the component was made with.
void setContext(const Reference<css::uno::XComponentContext>& context);
[[nodiscard]] const Reference<css::uno::XComponentContext>& context();

}  // namespace calvex::calc
