/// \file
/// The dialog "Diagnostic Information".
#pragma once

#include <memory>
#include <string>
#include <type_traits>

#include "ui/trace_view.h"
#include "ui/windows/modal_dialog.h"

// The list of images is an opaque pointer; its header is long.
struct _IMAGELIST;

namespace calvex {

class TraceDialog final : public ModalDialog {
 public:
  TraceDialog(HINSTANCE module, Diagnostics& diagnostics);
  DialogResult run();

 private:
  void opened() override;
  [[nodiscard]] Growth growth(int control) const override;
  void resized() override { fitColumns(); }
  void command(int control, int notification) override;
  void notified(const NMHDR& notification) override;

  void addImages();
  void addColumns();
  void fillList();
  void fitColumns();
  void fillTree(const TraceView::Call& call);
  /// The call of the selected row, or nullptr.
  [[nodiscard]] const TraceView::Call* selected() const;
  [[nodiscard]] short level() const;

  struct DestroyImages {
    void operator()(_IMAGELIST* images) const;
  };

  TraceView view_;
  std::unique_ptr<_IMAGELIST, DestroyImages> images_;
  const TraceView::Call* chosen_ = nullptr;
};

}  // namespace calvex
