#include "dialog/Drawings.h"

#include <algorithm>
#include <cmath>

namespace quorbel {

namespace {

constexpr COLORREF kOutline = RGB(0, 0, 0);
constexpr COLORREF kArrow = RGB(255, 0, 0);
constexpr COLORREF kGrey = RGB(160, 160, 160);

// Selects a pen for the lifetime of the object.
class Pen {
  public:
    Pen(HDC dc, COLORREF colour, int width)
        : dc_(dc), pen_(CreatePen(PS_SOLID, width, colour)), old_(SelectObject(dc, pen_)) {}
    ~Pen() {
        SelectObject(dc_, old_);
        DeleteObject(pen_);
    }
    Pen(const Pen&) = delete;
    Pen& operator=(const Pen&) = delete;

  private:
    HDC dc_;
    HPEN pen_;
    HGDIOBJ old_;
};

void line(HDC dc, POINT a, POINT b) {
    MoveToEx(dc, a.x, a.y, nullptr);
    LineTo(dc, b.x, b.y);
}

// A line with an arrow head at both ends.
void arrow(HDC dc, POINT a, POINT b, int head) {
    line(dc, a, b);
    double dx = b.x - a.x, dy = b.y - a.y;
    double len = std::max(1.0, std::hypot(dx, dy));
    double ux = dx / len, uy = dy / len;
    auto tip = [&](POINT p, double sx, double sy) {
        POINT l{static_cast<LONG>(p.x + head * (sx * ux - 0.5 * uy)),
                static_cast<LONG>(p.y + head * (sy * uy + 0.5 * ux))};
        POINT r{static_cast<LONG>(p.x + head * (sx * ux + 0.5 * uy)),
                static_cast<LONG>(p.y + head * (sy * uy - 0.5 * ux))};
        line(dc, p, l);
        line(dc, p, r);
    };
    tip(a, 1, 1);
    tip(b, -1, -1);
}

struct Cabinet {
    POINT f0, f1;  // front face corners (top-left, bottom-right)
    int dx, dy;    // depth offset of the back face
};

Cabinet cabinetIn(const RECT& box) {
    int w = box.right - box.left, h = box.bottom - box.top;
    Cabinet c;
    c.dx = w / 5;
    c.dy = h / 6;
    int margin = std::max(4, w / 7);
    c.f0 = {box.left + margin, box.top + margin / 2 + c.dy};
    c.f1 = {box.right - margin - c.dx, box.bottom - margin};
    return c;
}

void outline(HDC dc, const Cabinet& c) {
    POINT tl = c.f0, br = c.f1;
    POINT tr{br.x, tl.y}, bl{tl.x, br.y};
    auto back = [&](POINT p) { return POINT{p.x + c.dx, p.y - c.dy}; };
    line(dc, tl, tr);
    line(dc, tr, br);
    line(dc, br, bl);
    line(dc, bl, tl);
    line(dc, tl, back(tl));
    line(dc, tr, back(tr));
    line(dc, br, back(br));
    line(dc, back(tl), back(tr));
    line(dc, back(tr), back(br));
}

bool changesWidth(int k) {
    return k == 0 || k == 3 || k == 4 || k == 6;
}
bool changesHeight(int k) {
    return k == 1 || k == 3 || k == 5 || k == 6;
}
bool changesDepth(int k) {
    return k == 2 || k == 4 || k == 5 || k == 6;
}

void label(HDC dc, POINT at, const wchar_t* text, COLORREF colour) {
    SetTextColor(dc, colour);
    SetBkMode(dc, TRANSPARENT);
    RECT r{at.x - 20, at.y - 8, at.x + 20, at.y + 8};
    DrawTextW(dc, text, -1, &r, DT_CENTER | DT_VCENTER | DT_SINGLELINE | DT_NOCLIP);
}

}  // namespace

void drawSpecialType(HDC dc, const RECT& box, int k, bool enabled) {
    Cabinet c = cabinetIn(box);
    int w = box.right - box.left;
    int head = std::max(3, w / 16);
    int gap = std::max(3, w / 20);
    {
        Pen pen(dc, enabled ? kOutline : kGrey, 1);
        outline(dc, c);
    }
    Pen pen(dc, enabled ? kArrow : kGrey, std::max(1, w / 50));
    if (changesWidth(k)) arrow(dc, {c.f0.x, c.f1.y + gap}, {c.f1.x, c.f1.y + gap}, head);
    if (changesHeight(k)) arrow(dc, {c.f0.x - gap, c.f0.y}, {c.f0.x - gap, c.f1.y}, head);
    if (changesDepth(k))
        arrow(dc, {c.f1.x + gap, c.f1.y}, {c.f1.x + gap + c.dx, c.f1.y - c.dy}, head);
}

void drawDiagonal(HDC dc, const RECT& box, int mode, bool enabled) {
    int w = box.right - box.left, h = box.bottom - box.top;
    int m = std::max(6, std::min(w, h) / 6);
    int x0 = box.left + m, y0 = box.top + m, x1 = box.right - m * 2, y1 = box.bottom - m * 3 / 2;
    int cx = x0 + (x1 - x0) * 11 / 20, cy = y0 + (y1 - y0) * 9 / 20;
    POINT shape[5] = {{x0, y0}, {x1, y0}, {x1, cy}, {cx, y1}, {x0, y1}};
    COLORREF ink = enabled ? kOutline : kGrey;
    COLORREF mark = enabled ? kArrow : kGrey;
    {
        Pen pen(dc, ink, 1);
        Polyline(dc, shape, 5);
        line(dc, shape[4], shape[0]);
    }
    Pen pen(dc, mark, std::max(1, w / 60));
    line(dc, shape[2], shape[3]);  // the cut
    if (mode == 0) {
        label(dc, {x1 + m / 2 + 2, (y0 + cy) / 2}, L"L1", mark);
        label(dc, {(x0 + cx) / 2, y1 + m / 2 + 1}, L"L2", mark);
        label(dc, {(x1 + cx) / 2 - m / 2, (cy + y1) / 2 - m / 2}, L"L3", mark);
        return;
    }
    int r = std::max(8, (x1 - cx) / 2);
    Arc(dc, cx - r, y1 - r, cx + r, y1 + r, cx + r, y1, shape[2].x, shape[2].y);
    label(dc, {cx + r / 2 + 6, y1 - r / 3 - 2}, L"\u03B1", mark);
}

}  // namespace quorbel
