// The two looks of a picture.
#include "companions/preview/look.h"

#include <algorithm>

namespace korvel::preview {

Look Look::plain()
{
    Look look;
    look.cell = {12, 24};
    look.margin = 40; // 5 mm
    look.space = 24;
    look.tooth = 8;
    look.dotsPerMetre = 7992; // 203 dpi
    look.paper = Qt::white;
    look.edge = QColor(0x80, 0x80, 0x80);
    look.ink = Qt::black;
    return look;
}

Look Look::thermal(int columns)
{
    constexpr int printing = 576; // 72 mm
    constexpr int widestCell = 18;
    constexpr int narrowestCell = 9;
    const int width = std::clamp(printing / columns, narrowestCell, widestCell);
    Look look;
    look.cell = {width, 2 * width};
    look.printing = printing;
    look.margin = 32; // 4 mm
    look.space = 48;
    look.tooth = 10;
    look.dotsPerMetre = 8000;
    look.dots = true;
    look.paper = QColor(0xf1, 0xf0, 0xec);
    look.edge = QColor(0xcc, 0xcb, 0xc7);
    look.ink = QColor(0x2a, 0x2a, 0x2e);
    return look;
}

} // namespace korvel::preview
