#include "ui/windows/trace_dialog.h"

#include <algorithm>
#include <vector>

#include "ui/resource_ids.h"
#include "ui/windows/common_controls.h"

namespace calvex {

namespace {

/// Enter in the list is the list's and not the default button's.
LRESULT CALLBACK takeEnter(HWND window, UINT message, WPARAM first, LPARAM second, UINT_PTR id,
                           DWORD_PTR) {
  if (message == WM_NCDESTROY) commonControls().RemoveWindowSubclass(window, takeEnter, id);
  const LRESULT answer = commonControls().DefSubclassProc(window, message, first, second);
  if (message != WM_GETDLGCODE || second == 0) return answer;
  const auto& key = *reinterpret_cast<const MSG*>(second);
  return key.message == WM_KEYDOWN && key.wParam == VK_RETURN ? answer | DLGC_WANTMESSAGE : answer;
}

/// Hides the intermediate states of a control while it is filled.
class Redraw {
 public:
  explicit Redraw(HWND window) : window_(window) { SendMessageW(window_, WM_SETREDRAW, FALSE, 0); }
  ~Redraw() {
    SendMessageW(window_, WM_SETREDRAW, TRUE, 0);
    InvalidateRect(window_, nullptr, TRUE);
  }
  Redraw(const Redraw&) = delete;
  Redraw& operator=(const Redraw&) = delete;

 private:
  HWND window_;
};

}  // namespace

void TraceDialog::DestroyImages::operator()(_IMAGELIST* images) const {
  commonControls().ImageList_Destroy(images);
}

TraceDialog::TraceDialog(HINSTANCE module, Diagnostics& diagnostics)
    : ModalDialog(module, CALVEX_TRACE_DIALOG), view_(diagnostics) {}

DialogResult TraceDialog::run() {
  const DialogResult result = show();
  // Again, for a call that the client made meanwhile emptied them.
  if (result == DialogResult::goToCell) view_.take(*chosen_);
  return result;
}

void TraceDialog::opened() {
  addImages();
  addColumns();
  for (const std::string_view text : TraceView::levelTexts) {
    send(CALVEX_TRACE_LEVEL, CB_ADDSTRING, 0, toWide(text).c_str());
  }
  send(CALVEX_TRACE_LEVEL, CB_SETCURSEL, static_cast<WPARAM>(view_.level()));
  commonControls().SetWindowSubclass(control(CALVEX_TRACE_LIST), takeEnter, 0, 0);
  fillList();
  fitColumns();
}

// The list and the tree share what is added.
Growth TraceDialog::growth(int control) const {
  switch (control) {
    case CALVEX_TRACE_LIST:
      return {0, 0, 1, 0.5};
    case CALVEX_TRACE_TREE:
      return {0, 0.5, 1, 1};
    case CALVEX_TRACE_LEVEL:
      return {0, 1, 0, 1};
    default:
      return {1, 1, 1, 1};
  }
}

void TraceDialog::addImages() {
  const int width = GetSystemMetrics(SM_CXSMICON), height = GetSystemMetrics(SM_CYSMICON);
  images_.reset(commonControls().ImageList_Create(width, height, ILC_COLOR32 | ILC_MASK, 5, 0));
  for (int number = CALVEX_ICON_ERROR; number <= CALVEX_ICON_EXTERNAL_ERROR; ++number) {
    const HANDLE icon =
        LoadImageW(module(), MAKEINTRESOURCEW(number), IMAGE_ICON, width, height, 0);
    commonControls().ImageList_ReplaceIcon(images_.get(), -1, static_cast<HICON>(icon));
    DestroyIcon(static_cast<HICON>(icon));
  }
  send(CALVEX_TRACE_LIST, LVM_SETIMAGELIST, LVSIL_SMALL, images_.get());
  send(CALVEX_TRACE_TREE, TVM_SETIMAGELIST, TVSIL_NORMAL, images_.get());
}

void TraceDialog::addColumns() {
  constexpr DWORD style = LVS_EX_FULLROWSELECT | LVS_EX_LABELTIP;
  send(CALVEX_TRACE_LIST, LVM_SETEXTENDEDLISTVIEWSTYLE, style, style);
  for (std::size_t i = 0; i < view_.columns().size(); ++i) {
    std::wstring title = toWide(view_.columns()[i].title);
    LVCOLUMNW column{};
    column.mask = LVCF_TEXT;
    column.pszText = title.data();
    send(CALVEX_TRACE_LIST, LVM_INSERTCOLUMNW, i, &column);
  }
}

// After the list is filled: the scroll bar is then there or not.
void TraceDialog::fitColumns() {
  RECT client{};
  GetClientRect(control(CALVEX_TRACE_LIST), &client);
  for (std::size_t i = 0; i < view_.columns().size(); ++i) {
    send(CALVEX_TRACE_LIST, LVM_SETCOLUMNWIDTH, i,
         static_cast<int>(view_.columns()[i].width * static_cast<double>(client.right)));
  }
}

void TraceDialog::fillList() {
  const TraceView::Call* const before = selected();
  const Redraw redraw(control(CALVEX_TRACE_LIST));
  send(CALVEX_TRACE_LIST, LVM_DELETEALLITEMS);
  send(CALVEX_TRACE_TREE, TVM_DELETEITEM, 0, TVI_ROOT);

  const std::vector<std::size_t> listed = view_.listed(level());
  std::size_t selection = 0;
  for (std::size_t row = 0; row < listed.size(); ++row) {
    const TraceView::Call& call = view_.calls()[listed[row]];
    if (&call == before) selection = row;
    std::wstring text = toWide(call.text());
    LVITEMW item{};
    item.mask = LVIF_TEXT | LVIF_IMAGE | LVIF_PARAM;
    item.iItem = static_cast<int>(row);
    item.pszText = text.data();
    item.iImage = static_cast<int>(call.image());
    item.lParam = reinterpret_cast<LPARAM>(&call);
    send(CALVEX_TRACE_LIST, LVM_INSERTITEMW, 0, &item);
    for (const std::string& value : call.columnValues) {
      text = toWide(value);
      ++item.iSubItem;
      item.pszText = text.data();
      send(CALVEX_TRACE_LIST, LVM_SETITEMTEXTW, row, &item);
    }
  }

  LVITEMW item{};
  item.state = item.stateMask = LVIS_SELECTED | LVIS_FOCUSED;
  send(CALVEX_TRACE_LIST, LVM_SETITEMSTATE, selection, &item);
  send(CALVEX_TRACE_LIST, LVM_ENSUREVISIBLE, selection, FALSE);
}

void TraceDialog::fillTree(const TraceView::Call& call) {
  const Redraw redraw(control(CALVEX_TRACE_TREE));
  send(CALVEX_TRACE_TREE, TVM_DELETEITEM, 0, TVI_ROOT);
  std::vector<HTREEITEM> path = {TVI_ROOT};  // where the next node of each depth belongs
  for (const TraceView::Node& node : call.nodes) {
    const auto depth = static_cast<std::size_t>(node.depth);
    std::wstring text = toWide(node.text);
    TVINSERTSTRUCTW insertion{};
    insertion.hParent = path[depth];
    insertion.hInsertAfter = TVI_LAST;
    TVITEMW& item = insertion.item;
    item.mask = TVIF_TEXT | TVIF_IMAGE | TVIF_SELECTEDIMAGE | TVIF_PARAM | TVIF_STATE;
    item.pszText = text.data();
    item.iImage = item.iSelectedImage = static_cast<int>(node.image);
    item.lParam = reinterpret_cast<LPARAM>(&node);
    item.stateMask = TVIS_EXPANDED;
    item.state = node.expanded ? TVIS_EXPANDED : 0U;
    path.resize(depth + 1);
    path.push_back(
        reinterpret_cast<HTREEITEM>(send(CALVEX_TRACE_TREE, TVM_INSERTITEMW, 0, &insertion)));
  }
}

const TraceView::Call* TraceDialog::selected() const {
  LVITEMW item{};
  item.mask = LVIF_PARAM;
  item.iItem = static_cast<int>(
      send(CALVEX_TRACE_LIST, LVM_GETNEXTITEM, static_cast<WPARAM>(-1), LVNI_SELECTED));
  if (item.iItem < 0) return nullptr;
  send(CALVEX_TRACE_LIST, LVM_GETITEMW, 0, &item);
  return reinterpret_cast<const TraceView::Call*>(item.lParam);
}

short TraceDialog::level() const {
  return static_cast<short>(send(CALVEX_TRACE_LEVEL, CB_GETCURSEL));
}

void TraceDialog::command(int control, int notification) {
  switch (control) {
    case IDOK:
      view_.putLevel(level());
      return close(DialogResult::ok);
    case IDCANCEL:
      return close(DialogResult::cancel);
    case CALVEX_TRACE_LEVEL:
      if (notification == CBN_SELCHANGE) fillList();
  }
}

void TraceDialog::notified(const NMHDR& notification) {
  if (notification.idFrom != CALVEX_TRACE_LIST) return;
  const TraceView::Call* const call = selected();
  if (call == nullptr) return;
  switch (notification.code) {
    case LVN_ITEMCHANGED: {
      const auto& change = reinterpret_cast<const NMLISTVIEW&>(notification);
      if ((change.uNewState & ~change.uOldState & LVIS_SELECTED) != 0) fillTree(*call);
      return;
    }
    case LVN_KEYDOWN:
      if (reinterpret_cast<const NMLVKEYDOWN&>(notification).wVKey == VK_SPACE) view_.take(*call);
      return;
    case NM_CLICK:
      return view_.take(*call);
    case NM_DBLCLK:
    case NM_RETURN:
      view_.take(*call);
      chosen_ = call;
      return close(DialogResult::goToCell);
  }
}

}  // namespace calvex
