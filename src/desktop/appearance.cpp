// A quiet light ground with texts of high contrast; the dark pictures stand out from it.
#include "desktop/appearance.h"

#include <QApplication>
#include <QIcon>
#include <QPainter>
#include <QPalette>
#include <QPixmap>
#include <QProxyStyle>
#include <QStyleFactory>
#include <QStyleOption>

namespace pelorium {

namespace {

struct PaletteEntry {
  QPalette::ColorRole role;
  QRgb colour;
  QRgb disabled;
};

constexpr PaletteEntry kPalette[] = {
    {QPalette::Window, 0xFFE2E4E7, 0xFFE2E4E7},      {QPalette::WindowText, 0xFF16181A, 0xFF7C8085},
    {QPalette::Base, 0xFFFDFDFD, 0xFFEEEFF1},        {QPalette::AlternateBase, 0xFFF1F3F5, 0xFFEEEFF1},
    {QPalette::Text, 0xFF101214, 0xFF7C8085},        {QPalette::PlaceholderText, 0xFF6F7378, 0xFF7C8085},
    {QPalette::Button, 0xFFEBEDEF, 0xFFE2E4E7},      {QPalette::ButtonText, 0xFF16181A, 0xFF7C8085},
    {QPalette::BrightText, 0xFFFFFFFF, 0xFFFFFFFF},  {QPalette::Light, 0xFFFFFFFF, 0xFFFFFFFF},
    {QPalette::Midlight, 0xFFF0F1F3, 0xFFF0F1F3},    {QPalette::Mid, 0xFFB4B8BD, 0xFFB4B8BD},
    {QPalette::Dark, 0xFF8E9399, 0xFF8E9399},        {QPalette::Shadow, 0xFF5A5E63, 0xFF5A5E63},
    {QPalette::Highlight, 0xFF2A6FB0, 0xFF9DA5AD},   {QPalette::HighlightedText, 0xFFFFFFFF, 0xFFFFFFFF},
    {QPalette::Link, 0xFF1B5E9E, 0xFF7C8085},        {QPalette::ToolTipBase, 0xFFFFFBE6, 0xFFFFFBE6},
    {QPalette::ToolTipText, 0xFF16181A, 0xFF16181A},
};

constexpr int kMenuHeadSaving = 6;  // pixels

// Alt alone leads into the menu bar, whose heads carry no letters of their own.
class PeloriumStyle : public QProxyStyle {
 public:
  PeloriumStyle() : QProxyStyle(QStyleFactory::create("Fusion")) {}
  int styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                QStyleHintReturn* result) const override {
    if (hint == SH_MenuBar_AltKeyNavigation) return 1;
    return QProxyStyle::styleHint(hint, option, widget, result);
  }
  // Captions carry bars and blanks of their own: the heads need less room around them, so that all of them
  // stand side by side on a small screen.
  QSize sizeFromContents(ContentsType type, const QStyleOption* option, const QSize& size,
                         const QWidget* widget) const override {
    const QSize whole = QProxyStyle::sizeFromContents(type, option, size, widget);
    return type == CT_MenuBarItem ? whole - QSize(kMenuHeadSaving, 0) : whole;
  }
  // A head that the keyboard stands on looks like one that is open; the style beneath shows no difference.
  void drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                   const QWidget* widget) const override {
    const auto* item = qstyleoption_cast<const QStyleOptionMenuItem*>(option);
    if (element != CE_MenuBarItem || item == nullptr || !item->state.testFlag(State_Selected)) {
      QProxyStyle::drawControl(element, option, painter, widget);
      return;
    }
    QStyleOptionMenuItem shown = *item;
    shown.state |= State_Sunken;
    QProxyStyle::drawControl(element, &shown, painter, widget);
  }
};

// A faceted drop in wires.
QIcon MakeIcon() {
  constexpr int kSide = 64;
  const QPolygonF outline({{32, 5}, {56, 24}, {47, 57}, {17, 57}, {8, 24}});
  QPixmap pixmap(kSide, kSide);
  pixmap.fill(Qt::transparent);
  QPainter painter(&pixmap);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(QPen(QColor(0xFFFFD27A), 4, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
  painter.setBrush(QColor(0xFFB4541E));
  painter.drawPolygon(outline);
  for (const QPointF& corner : outline) painter.drawLine(QPointF(32, 32), corner);
  return pixmap;
}

}  // namespace

void SetAppearance(QApplication& application) {
  application.setStyle(new PeloriumStyle);
  QPalette palette;
  for (const PaletteEntry& entry : kPalette) {
    palette.setColor(QPalette::All, entry.role, QColor(entry.colour));
    palette.setColor(QPalette::Disabled, entry.role, QColor(entry.disabled));
  }
  application.setPalette(palette);
  application.setWindowIcon(MakeIcon());
}

}  // namespace pelorium
