#include "dialog/Layout.h"

#include <algorithm>

#include "platform/Ansi.h"

namespace quorbel {

namespace {

// Measures texts with the dialog font and places controls column by column.
class Builder {
  public:
    Builder(const dialog::frmEspEnc& f, HDC dc, int dpi) : f_(f), dc_(dc) {
        out_.dpi = dpi;
        TEXTMETRICW tm;
        GetTextMetricsW(dc, &tm);
        fh_ = tm.tmHeight;
        gap_ = std::max(4, fh_ / 2);
        margin_ = fh_;
        editH_ = fh_ + 8;
        buttonH_ = fh_ + 12;
        scrollW_ = GetSystemMetrics(SM_CXVSCROLL);
    }

    Layout build() {
        int x = margin_;
        int w1 = componentsWidth(), w2 = specialWidth(), w3 = recessWidth();
        int b1 = components(x, w1);
        x += w1 + margin_;
        int b2 = special(x, w2);
        x += w2 + margin_;
        int b3 = recesses(x, w3);
        out_.client = {x + w3 + margin_, std::max({b1, b2, b3}) + margin_};
        return out_;
    }

  private:
    int textW(const std::u16string& s) const {
        SIZE size{};
        std::wstring w = wide(s);
        GetTextExtentPoint32W(dc_, w.c_str(), static_cast<int>(w.size()), &size);
        return size.cx;
    }
    // Height of a label wrapped at `width`; a word wider than the width counts as too high.
    int wrapH(const std::u16string& s, int width) const {
        std::wstring w = wide(s);
        RECT r{0, 0, width, 0};
        DrawTextW(dc_, w.c_str(), static_cast<int>(w.size()), &r,
                  DT_CALCRECT | DT_WORDBREAK | DT_NOPREFIX);
        return std::max<int>(fh_, r.bottom);
    }
    int widestWord(const std::u16string& s) const {
        int best = 0;
        size_t start = 0;
        while (start <= s.size()) {
            size_t end = s.find(u' ', start);
            if (end == std::u16string::npos) end = s.size();
            best = std::max(best, textW(s.substr(start, end - start)));
            start = end + 1;
        }
        return best;
    }
    void put(const std::u16string& name, int index, RECT r, const std::wstring& parent = L"",
             int group = 0) {
        out_.places[keyOf(name, index)] = Place{parent, r, group};
    }
    static RECT box(int x, int y, int w, int h) { return RECT{x, y, x + w, y + h}; }
    int buttonW(const std::u16string& caption) const { return textW(caption) + 2 * fh_; }
    int heading(const std::u16string& name, const dialog::Label& l, int x, int y, int w) {
        int h = wrapH(l.Caption, w);
        put(name, 0, box(x, y, w, h));
        return y + h + gap_ / 2;
    }
    // A button without caption carrying a label (clicks on either act alike).
    int labelledButton(const std::u16string& button, const std::u16string& label,
                       const dialog::Label& l, int x, int y, const std::wstring& parent = L"") {
        int tw = textW(l.Caption) + 4, th = fh_ + 2;
        int bw = tw + 2 * fh_, bh = buttonH_;
        put(button, 0, box(x, y, bw, bh), parent);
        put(label, 0, box((bw - tw) / 2, (bh - th) / 2, tw, th), keyOf(button, 0));
        return y + bh;
    }

    int componentsWidth() const {
        int w = 16 * fh_;
        for (const auto* l : {&f_.Label8, &f_.Label11, &f_.Label9, &f_.Label13, &f_.Label14})
            w = std::max(w, widestWord(l->Caption) + 4);
        w = std::max(w, std::max(buttonW(f_.btnAcptComp.Caption), buttonW(f_.btnCnlComps.Caption)));
        w = std::max(w, textW(f_.EtiqCnlValores.Caption) + 4 + 2 * fh_);
        return std::max(w, valuesLabelW() + gap_ + 6 * fh_);
    }
    int valuesLabelW() const {
        int lw = 0;
        for (const auto& l : f_.EtiqValores) lw = std::max(lw, textW(l.Caption) + 4);
        return lw;
    }
    int components(int x, int w) {
        const std::u16string names[4] = {u"Label8", u"Label11", u"Label9", u"Label13"};
        const dialog::Label* labels[4] = {&f_.Label8, &f_.Label11, &f_.Label9, &f_.Label13};
        int y = margin_;
        for (int k = 0; k < 4; ++k) {
            y = heading(names[k], *labels[k], x, y, w);
            put(u"listComponentes", k, box(x, y, w, 6 * fh_));
            y += 6 * fh_ + gap_;
        }
        y = heading(u"Label14", f_.Label14, x, y, w);
        int lw = valuesLabelW();
        for (int k = 0; k < 4; ++k) {
            put(u"EtiqValores", k, box(x, y + 3, lw, editH_ - 3));
            put(u"TextValores", k, box(x + lw + gap_, y, w - lw - gap_, editH_));
            y += editH_ + gap_ / 2;
        }
        y = labelledButton(u"BotonCnlValores", u"EtiqCnlValores", f_.EtiqCnlValores, x, y) + gap_;
        int wa = buttonW(f_.btnAcptComp.Caption), wc = buttonW(f_.btnCnlComps.Caption);
        if (wa + gap_ + wc <= w) {
            put(u"btnAcptComp", 0, box(x, y + gap_, wa, buttonH_ + 2));
            put(u"btnCnlComps", 0, box(x + w - wc, y + gap_, wc, buttonH_ + 2));
            return y + gap_ + buttonH_ + 2;
        }
        // Captions too long for one row: one button above the other.
        put(u"btnAcptComp", 0, box(x, y + gap_, w, buttonH_ + 2));
        put(u"btnCnlComps", 0, box(x, y + 2 * gap_ + buttonH_ + 2, w, buttonH_ + 2));
        return y + 2 * (gap_ + buttonH_ + 2);
    }

    int cellW() const {
        int c = 6 * fh_;
        for (const auto& l : f_.EtiqCuadEsp) c = std::max(c, widestWord(l.Caption) + 6);
        for (const auto& b : f_.btnNoDisponible) c = std::max(c, widestWord(b.Caption) + 18);
        return c;
    }
    int specialWidth() const {
        int w = 4 * cellW() + 3 * gap_;
        w = std::max(w, widestWord(f_.Label3.Caption) + 4);
        w = std::max(w, widestWord(f_.EtiqInfoEsp.Caption) + 4);
        w = std::max(w, textW(f_.PanelMedEsp.Caption) + 3 * fh_);
        w = std::max(w, measuresLabelW() + gap_ + 6 * fh_ + 2 * fh_);
        return std::max(w, textW(f_.EtiqCnlMed.Caption) + 4 + 4 * fh_);
    }
    int measuresLabelW() const {
        int lw = 0;
        for (const auto& l : f_.EtiqMedEsp) lw = std::max(lw, textW(l.Caption) + 4);
        return lw;
    }
    int typeCells(int x, int y, int w) {
        int cw = cellW(), ph = cw * 4 / 5;
        int stride = (w - 4 * cw) / 3 + cw;
        int capH = 0;
        for (const auto& l : f_.EtiqCuadEsp) capH = std::max(capH, wrapH(l.Caption, cw));
        for (int k = 0; k < 7; ++k) {
            int cx = x + (k < 4 ? k : k - 4) * stride;
            int cy = k < 4 ? y : y + ph + 4 + capH + gap_;
            RECT pic = box(cx, cy, cw, ph);
            put(u"PictureEsp", k, pic, L"", 100 + k);
            put(u"PictureEspOc", k, pic, L"", 100 + k);
            RECT frame = pic;
            InflateRect(&frame, 2, 2);
            put(u"FormaSelect", k, frame, L"", 100 + k);
            int bh = std::min(ph - 6, wrapH(f_.btnNoDisponible[k].Caption, cw - 16) + 8);
            put(u"btnNoDisponible", k, box(3, (ph - bh) / 2, cw - 8, bh),
                keyOf(u"PictureEspOc", k));
            put(u"EtiqCuadEsp", k, box(cx, cy + ph + 4, cw, capH));
        }
        return y + 2 * (ph + 4 + capH) + gap_;
    }
    int measures(int x, int y, int w) {
        const std::wstring panel = keyOf(u"PanelMedEsp", 0);
        int lw = measuresLabelW();
        int iy = fh_ + gap_;
        for (int m = 0; m < 3; ++m) {
            put(u"EtiqMedEsp", m, box(fh_, iy + 3, lw, editH_ - 3), panel);
            put(u"TextMedEsp", m, box(fh_ + lw + gap_, iy, 6 * fh_, editH_), panel);
            iy += editH_ + gap_;
        }
        iy = labelledButton(u"BotonCnlMed", u"EtiqCnlMed", f_.EtiqCnlMed, fh_, iy, panel) + gap_;
        put(u"PanelMedEsp", 0, box(x, y, w, iy));
        return y + iy + gap_;
    }
    int special(int x, int w) {
        int y = heading(u"Label3", f_.Label3, x, margin_, w) + 2;
        y = typeCells(x, y, w);
        int ih = wrapH(f_.EtiqInfoEsp.Caption, w);
        put(u"EtiqInfoEsp", 0, box(x, y, w, ih));
        y = measures(x, y + ih + gap_, w);
        y = heading(u"Label12", f_.Label12, x, y, w);
        int ph = 8 * fh_;
        put(u"ImagePreview", 0, box(x, y, w, ph), L"", 300);
        int nh = wrapH(f_.EtiqEncNoDisp.Caption, w - 8);
        put(u"EtiqEncNoDisp", 0, box(x + 4, y + (ph - nh) / 2, w - 8, nh), L"", 300);
        return y + ph;
    }

    int recessWidth() const {
        int w = 18 * fh_;
        for (const auto* l : {&f_.Label2, &f_.Label5, &f_.EtiqInfoDiag})
            w = std::max(w, widestWord(l->Caption) + 4);
        return w;
    }
    // Only left and width matter for the rows: the form gives each row its top and height,
    // and rows created at run time copy element 0.
    void recessRows(int w) {
        const std::wstring in = keyOf(u"picin", 0);
        int inner = w - 8;
        int lw = inner / 2;
        put(u"EtiqTituloEnc", 0, box(4, 0, inner, 0), in);
        put(u"EtiqValorEnc", 0, box(4 + fh_ / 2, 0, lw - fh_ / 2, 0), in);
        put(u"TxtValoresEnc", 0, box(4 + lw + 2, 0, inner - lw - 2, 0), in);
    }
    int recesses(int x, int w) {
        int y = heading(u"Label2", f_.Label2, x, margin_, w);
        put(u"listComponentes", 4, box(x, y, w, 5 * fh_));
        y += 5 * fh_ + gap_;
        int ph = out_.px(f_.picout.Height);
        int pw = w - scrollW_;
        put(u"picout", 0, box(x, y, pw, ph));
        put(u"barraScrolEnc", 0, box(x + pw, y, scrollW_, ph));
        put(u"picin", 0, box(0, 0, pw, 0), keyOf(u"picout", 0));
        recessRows(pw);
        y += ph + gap_;
        y = heading(u"Label5", f_.Label5, x, y, w) + 2;
        int dw = (w - gap_) / 2, dh = dw * 4 / 5;
        for (int i = 0; i < 2; ++i) {
            RECT pic = box(x + i * (dw + gap_), y, dw, dh);
            put(u"ImageDiagonal", i, pic, L"", 200 + i);
            InflateRect(&pic, 2, 2);
            put(u"FormaDiagonal", i, pic, L"", 200 + i);
        }
        y += dh + gap_;
        int ih = wrapH(f_.EtiqInfoDiag.Caption, w);
        put(u"EtiqInfoDiag", 0, box(x, y, w, ih));
        return y + ih;
    }

    const dialog::frmEspEnc& f_;
    HDC dc_;
    Layout out_;
    int fh_ = 13, gap_ = 6, margin_ = 13, editH_ = 21, buttonH_ = 25, scrollW_ = 16;
};

}  // namespace

std::wstring keyOf(const std::u16string& name, int index) {
    return wide(name) + L"#" + std::to_wstring(index);
}

Layout computeLayout(const dialog::frmEspEnc& form, HDC dc, int dpi) {
    return Builder(form, dc, dpi).build();
}

}  // namespace quorbel
