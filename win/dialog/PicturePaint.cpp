// What the picture boxes show: the special-type and diagonal drawings, and the preview picture
// loaded from its file ("No Disponible" when it cannot be read).
#include <ocidl.h>
#include <olectl.h>

#include <algorithm>

#include "dialog/DialogWindow.h"
#include "dialog/Drawings.h"
#include "platform/Ansi.h"

namespace quorbel {

void DialogWindow::loadPreview(const std::u16string& file) {
    if (file == previewFile_) return;
    previewFile_ = file;
    if (preview_) preview_->Release();
    preview_ = nullptr;
    previewFailed_ = false;
    if (file.empty()) return;
    std::wstring path = wide(file);
    HRESULT hr = OleLoadPicturePath(path.data(), nullptr, 0, 0, IID_IPicture,
                                    reinterpret_cast<void**>(&preview_));
    if (FAILED(hr) || !preview_) {
        preview_ = nullptr;
        previewFailed_ = true;
    }
}

void DialogWindow::paintPicture(HWND h, HDC dc, const RECT& client) {
    RealControl* rc = find(h);
    if (!rc) return;
    bool enabled = IsWindowEnabled(h) != FALSE;
    if (rc->name == u"PictureEsp") drawSpecialType(dc, client, rc->index, enabled);
    if (rc->name == u"ImageDiagonal") drawDiagonal(dc, client, rc->index, enabled);
    if (rc->name != u"ImagePreview" || previewFile_.empty()) return;
    if (preview_) {
        OLE_XSIZE_HIMETRIC hw = 0;
        OLE_YSIZE_HIMETRIC hh = 0;
        preview_->get_Width(&hw);
        preview_->get_Height(&hh);
        int cw = client.right - client.left, ch = client.bottom - client.top;
        if (hw <= 0 || hh <= 0) return;
        // Fit inside the box keeping the picture's proportions.
        double scale = std::min(static_cast<double>(cw) / hw, static_cast<double>(ch) / hh);
        int w = static_cast<int>(hw * scale), ht = static_cast<int>(hh * scale);
        preview_->Render(dc, (cw - w) / 2, (ch - ht) / 2, w, ht, 0, hh, hw, -hh, nullptr);
        return;
    }
    // A picture that cannot be read shows what a missing one shows.
    std::wstring text = wide(form_.EtiqEncNoDisp.Caption);
    RECT r = client;
    HGDIOBJ old = SelectObject(dc, font_);
    SetBkMode(dc, TRANSPARENT);
    SetTextColor(dc, GetSysColor(COLOR_BTNTEXT));
    DrawTextW(dc, text.c_str(), static_cast<int>(text.size()), &r,
              DT_CENTER | DT_VCENTER | DT_SINGLELINE | DT_NOPREFIX);
    SelectObject(dc, old);
}

}  // namespace quorbel
