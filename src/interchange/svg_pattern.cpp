// Pages, and the drawing of one page.
#include "interchange/svg_pattern.h"

#include <algorithm>
#include <array>
#include <cmath>

#include "base/fault.h"

namespace pelorium {

namespace {

constexpr double kMargin = 10;  // millimetres that printers can leave blank
constexpr double kCropMark = 5, kCropGap = 1;
constexpr double kNoteHeight = 3;
constexpr double kRounding = 1e-6;  // a pattern as wide as its tile takes one
constexpr int kDecimals = 4;

struct PaperSize {
  double width, height;
};
constexpr std::array<PaperSize, 3> kPapers = {{{210, 297}, {297, 420}, {215.9, 279.4}}};

struct LineStyle {
  PatternLineKind kind;
  const char* name;
  const char* stroke;
};
constexpr std::array<LineStyle, 4> kStyles = {{
    {PatternLineKind::Cut, "cut", "stroke=\"#000000\" stroke-width=\"0.3\""},
    {PatternLineKind::Fold, "fold", "stroke=\"#606060\" stroke-width=\"0.2\" stroke-dasharray=\"2 1\""},
    {PatternLineKind::Mountain, "mountain",
     "stroke=\"#c00000\" stroke-width=\"0.2\" stroke-dasharray=\"4 1 0.6 1\""},
    {PatternLineKind::Valley, "valley", "stroke=\"#0000c0\" stroke-width=\"0.2\" stroke-dasharray=\"2 1\""},
}};

struct Box {
  double left = HUGE_VAL, right = -HUGE_VAL, bottom = HUGE_VAL, top = -HUGE_VAL;

  void Hold(const PatternPlace& p) {
    left = std::min(left, p.x), right = std::max(right, p.x);
    bottom = std::min(bottom, p.y), top = std::max(top, p.y);
  }
  bool Meets(const Box& other) const {
    return left <= other.right && right >= other.left && bottom <= other.top && top >= other.bottom;
  }
};

Box BoxOf(const PatternLine& line) {
  Box box;
  box.Hold(line.from);
  box.Hold(line.to);
  return box;
}

Box BoxOf(const FlatPattern& pattern) {
  Box box;
  for (const PatternLine& line : pattern.lines) {
    box.Hold(line.from);
    box.Hold(line.to);
  }
  return box;
}

// Tiles needed for a length; beyond all bounds it is one too many.
int TilesFor(double length, double tile) {
  const double tiles = std::ceil(length / tile - kRounding);
  return tiles <= kMaxPatternPages ? std::max(1, static_cast<int>(tiles)) : kMaxPatternPages + 1;
}

PatternPages PagesOf(const Box& box, const PaperSize& paper) {
  PatternPages pages;
  pages.paperWidth = paper.width;
  pages.paperHeight = paper.height;
  pages.tileWidth = paper.width - 2 * kMargin;
  pages.tileHeight = paper.height - 2 * kMargin;
  pages.columns = TilesFor(box.right - box.left, pages.tileWidth);
  pages.rows = TilesFor(box.top - box.bottom, pages.tileHeight);
  const bool isOne = pages.count() == 1;
  pages.left = isOne ? (box.left + box.right - pages.tileWidth) / 2 : box.left;
  pages.top = isOne ? (box.top + box.bottom + pages.tileHeight) / 2 : box.top;
  return pages;
}

// One page of the drawing: from the pattern's places to the paper's, where y goes down.
class Page {
 public:
  Page(const FlatPattern& pattern, const PatternPages& pages, int page, TextWriter& out)
      : pattern_(pattern), pages_(pages), page_(page), out_(out) {
    const int column = page % pages.columns, row = page / pages.columns;
    tile_.left = pages.left + column * pages.tileWidth;
    tile_.right = tile_.left + pages.tileWidth;
    tile_.top = pages.top - row * pages.tileHeight;
    tile_.bottom = tile_.top - pages.tileHeight;
  }

  void Write() {
    WriteHead();
    out_.Line(IsSplit() ? "<g clip-path=\"url(#tile)\">" : "<g>");
    for (const LineStyle& style : kStyles) WriteLines(style);
    WriteTexts();
    out_.Line("</g>");
    WriteNotes();
    out_.Line("</svg>");
  }

 private:
  bool IsSplit() const { return pages_.count() > 1; }
  double X(double x) const { return x - tile_.left + kMargin; }
  double Y(double y) const { return tile_.top - y + kMargin; }

  void WriteHead() {
    out_.Line("<?xml version=\"1.0\" encoding=\"UTF-8\"?>");
    out_.Text("<svg xmlns=\"http://www.w3.org/2000/svg\" version=\"1.1\" width=\"");
    out_.Rounded(pages_.paperWidth, kDecimals).Text("mm\" height=\"").Rounded(pages_.paperHeight, kDecimals);
    out_.Text("mm\" viewBox=\"0 0 ").Rounded(pages_.paperWidth, kDecimals).Text(" ");
    out_.Rounded(pages_.paperHeight, kDecimals).Text("\">").EndLine();
    out_.Line("<title>Flat pattern</title>");
    if (!IsSplit()) return;
    out_.Text("<clipPath id=\"tile\"><rect x=\"").General(kMargin).Text("\" y=\"").General(kMargin);
    out_.Text("\" width=\"").Rounded(pages_.tileWidth, kDecimals).Text("\" height=\"");
    out_.Rounded(pages_.tileHeight, kDecimals).Text("\"/></clipPath>").EndLine();
  }

  void WriteLine(double x1, double y1, double x2, double y2) {
    out_.Text("<line x1=\"").Rounded(x1, kDecimals).Text("\" y1=\"").Rounded(y1, kDecimals);
    out_.Text("\" x2=\"")
        .Rounded(x2, kDecimals)
        .Text("\" y2=\"")
        .Rounded(y2, kDecimals)
        .Text("\"/>")
        .EndLine();
  }

  void WriteLines(const LineStyle& style) {
    bool isOpen = false;
    for (const PatternLine& line : pattern_.lines) {
      if (line.kind != style.kind || !BoxOf(line).Meets(tile_)) continue;
      if (!isOpen) {
        out_.Text("<g id=\"").Text(style.name).Text("\" fill=\"none\" stroke-linecap=\"round\" ");
        out_.Text(style.stroke).Text(">").EndLine();
      }
      isOpen = true;
      WriteLine(X(line.from.x), Y(line.from.y), X(line.to.x), Y(line.to.y));
    }
    if (isOpen) out_.Line("</g>");
  }

  // Half of a text's height below its middle, that is where its letters stand.
  void WriteText(double x, double y, double height, std::string_view text) {
    constexpr double kCapital = 0.72;  // of the font's size
    out_.Text("<text x=\"").Rounded(x, kDecimals).Text("\" y=\"");
    out_.Rounded(y + height / 2, kDecimals).Text("\" font-size=\"").Rounded(height / kCapital, kDecimals);
    out_.Text("\">").Text(text).Text("</text>").EndLine();
  }

  void WriteTexts() {
    for (const bool isFace : {false, true}) {
      bool isOpen = false;
      for (const PatternText& text : pattern_.texts) {
        Box box;
        box.Hold({text.centre.x - text.height, text.centre.y - text.height});
        box.Hold({text.centre.x + text.height, text.centre.y + text.height});
        if (text.isFace != isFace || !box.Meets(tile_)) continue;
        if (!isOpen) {
          out_.Text("<g id=\"").Text(isFace ? "faces" : "edges");
          out_.Text("\" font-family=\"sans-serif\" text-anchor=\"middle\" fill=\"");
          out_.Text(isFace ? "#a0a0a0" : "#000000").Text("\">").EndLine();
        }
        isOpen = true;
        WriteText(X(text.centre.x), Y(text.centre.y), text.height, text.text);
      }
      if (isOpen) out_.Line("</g>");
    }
  }

  void WriteNotes() {
    if (!IsSplit()) return;
    out_.Line("<g id=\"crop\" fill=\"none\" stroke=\"#000000\" stroke-width=\"0.1\">");
    const double left = kMargin, right = kMargin + pages_.tileWidth;
    const double top = kMargin, bottom = kMargin + pages_.tileHeight;
    for (const double y : {top, bottom}) {
      WriteLine(left - kCropGap - kCropMark, y, left - kCropGap, y);
      WriteLine(right + kCropGap, y, right + kCropGap + kCropMark, y);
    }
    for (const double x : {left, right}) {
      WriteLine(x, top - kCropGap - kCropMark, x, top - kCropGap);
      WriteLine(x, bottom + kCropGap, x, bottom + kCropGap + kCropMark);
    }
    out_.Line("</g>");
    out_.Line("<g id=\"note\" font-family=\"sans-serif\" text-anchor=\"middle\">");
    WriteText(pages_.paperWidth / 2, pages_.paperHeight - kMargin / 2, kNoteHeight,
              "page " + std::to_string(page_ + 1) + " of " + std::to_string(pages_.count()) + ": column " +
                  std::to_string(page_ % pages_.columns + 1) + ", row " +
                  std::to_string(page_ / pages_.columns + 1));
    out_.Line("</g>");
  }

  const FlatPattern& pattern_;
  const PatternPages& pages_;
  const int page_;
  Box tile_;
  TextWriter& out_;
};

}  // namespace

PatternPages LayOutPages(const FlatPattern& pattern, PatternPaper paper) {
  if (pattern.lines.empty()) throw Fault(FaultKind::InvalidValue, "a pattern without faces");
  const Box box = BoxOf(pattern);
  if (paper == PatternPaper::Fit) {
    return PagesOf(box, {box.right - box.left + 2 * kMargin, box.top - box.bottom + 2 * kMargin});
  }
  const PaperSize& size = kPapers[static_cast<std::size_t>(paper)];
  const PatternPages upright = PagesOf(box, size), lying = PagesOf(box, {size.height, size.width});
  const PatternPages& fewer = lying.count() < upright.count() ? lying : upright;
  if (fewer.count() > kMaxPatternPages) {
    throw Fault(FaultKind::InvalidValue,
                "a pattern of more than " + std::to_string(kMaxPatternPages) + " pages");
  }
  return fewer;
}

void WriteSvgPage(const FlatPattern& pattern, const PatternPages& pages, int page, TextWriter& out) {
  Page(pattern, pages, page, out).Write();
}

}  // namespace pelorium
