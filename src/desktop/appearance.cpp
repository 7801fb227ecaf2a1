// A quiet dark ground, near the ground of the model's picture, with texts of high contrast.
#include "desktop/appearance.h"

#include <QApplication>
#include <QPalette>
#include <QProxyStyle>
#include <QStyleFactory>

namespace pelorium {

namespace {

struct PaletteEntry {
  QPalette::ColorRole role;
  QRgb colour;
  QRgb disabled;
};

constexpr PaletteEntry kPalette[] = {
    {QPalette::Window, 0xFF3B3E43, 0xFF3B3E43},      {QPalette::WindowText, 0xFFE6E6E6, 0xFF8F9296},
    {QPalette::Base, 0xFF292B2F, 0xFF34373B},        {QPalette::AlternateBase, 0xFF303338, 0xFF34373B},
    {QPalette::Text, 0xFFF0F0F0, 0xFF8F9296},        {QPalette::PlaceholderText, 0xFF9A9DA1, 0xFF8F9296},
    {QPalette::Button, 0xFF4E5258, 0xFF43464B},      {QPalette::ButtonText, 0xFFF0F0F0, 0xFF8F9296},
    {QPalette::BrightText, 0xFFFFFFFF, 0xFFFFFFFF},  {QPalette::Light, 0xFF6A6F76, 0xFF55585D},
    {QPalette::Midlight, 0xFF575B61, 0xFF4A4D52},    {QPalette::Mid, 0xFF33363A, 0xFF33363A},
    {QPalette::Dark, 0xFF26282B, 0xFF26282B},        {QPalette::Shadow, 0xFF141516, 0xFF141516},
    {QPalette::Highlight, 0xFF3D7EBB, 0xFF5A6067},   {QPalette::HighlightedText, 0xFFFFFFFF, 0xFFC0C0C0},
    {QPalette::Link, 0xFF7DB7EE, 0xFF8F9296},        {QPalette::ToolTipBase, 0xFFF3F0DC, 0xFFF3F0DC},
    {QPalette::ToolTipText, 0xFF1E1E1E, 0xFF1E1E1E},
};

// Alt alone leads into the menu bar, whose heads carry no letters of their own.
class PeloriumStyle : public QProxyStyle {
 public:
  PeloriumStyle() : QProxyStyle(QStyleFactory::create("Fusion")) {}
  int styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                QStyleHintReturn* result) const override {
    if (hint == SH_MenuBar_AltKeyNavigation) return 1;
    return QProxyStyle::styleHint(hint, option, widget, result);
  }
};

}  // namespace

void SetAppearance(QApplication& application) {
  application.setStyle(new PeloriumStyle);
  QPalette palette;
  for (const PaletteEntry& entry : kPalette) {
    palette.setColor(QPalette::All, entry.role, QColor(entry.colour));
    palette.setColor(QPalette::Disabled, entry.role, QColor(entry.disabled));
  }
  application.setPalette(palette);
}

}  // namespace pelorium
