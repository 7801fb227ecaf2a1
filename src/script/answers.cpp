// Tables and lists as lines.
#include "script/answers.h"

#include <initializer_list>

#include "base/numbers.h"
#include "controls/scroll_bar.h"
#include "core/model_store.h"
#include "script/parser.h"
#include "windows/shell/app_shell.h"

namespace pelorium {

namespace {

// One line of numbers behind its own.
void AppendLine(std::string& lines, int number, std::initializer_list<double> values) {
  lines += std::to_string(number);
  for (const double value : values) (lines += ' ') += ShortestForm(value);
  lines += '\n';
}

std::string RangeOf(const Control& control) {
  if (const auto* bar = dynamic_cast<const ScrollBar*>(&control)) {
    return std::to_string(bar->min()) + ".." + std::to_string(bar->max());
  }
  if (const auto* bar = dynamic_cast<const ProgressBar*>(&control)) return "0.." + std::to_string(bar->max());
  return "-";
}

}  // namespace

std::string AnswerForm(const PropertyValue& value) {
  if (const double* number = std::get_if<double>(&value)) return ShortestForm(*number);
  return Quoted(std::get<std::string>(value));
}

std::string PointLines(const ModelStore& model, int part, int first, int last) {
  model.Part(part);
  const auto points = PointRange(model, part, first, last);
  std::string lines;
  int number = first;
  for (const PointRec& p : points) {
    const std::int16_t mark = model.PointMark(part, number);
    AppendLine(lines, number++,
               {p.X, p.Y, p.Z, static_cast<double>(p.onoff), static_cast<double>(mark), p.u, p.v});
  }
  return lines;
}

std::string FaceLines(const ModelStore& model, int part, int first, int last) {
  model.Part(part);
  std::string lines;
  int number = first;
  for (const FaceRec& f : FaceRange(model, part, first, last)) {
    lines += std::to_string(number++);
    for (const int field : {f.corner1pt, f.corner2pt, f.corner3pt, int{f.onoff}, int{f.group}, int{f.vt1},
                            int{f.vt2}, int{f.vt3}}) {
      (lines += ' ') += std::to_string(field);
    }
    lines += '\n';
  }
  return lines;
}

std::string CornerLines(const ModelStore& model, int part, int first, int last) {
  model.Part(part);
  std::string lines;
  int number = first;
  for (const FaceRec& f : FaceRange(model, part, first, last)) {
    AppendLine(lines, number++, {f.c1X, f.c1Y, f.c1Z, f.c2X, f.c2Y, f.c2Z, f.c3X, f.c3Y, f.c3Z});
  }
  return lines;
}

std::string ProfileLines(const ModelStore& model, int profile) {
  std::string lines;
  for (int point = 0; point <= kMaxLayer; ++point) {
    const ProfilePointRec& p = model.ProfilePts(point, profile);
    AppendLine(lines, point, {p.X, p.Y, p.Z});
  }
  return lines;
}

std::string DialogLine(const FileDialogRequest& request) {
  return std::string(request.save ? "save " : "open ") + Quoted(request.title) + " " +
         Quoted(request.folder.string()) + " " + Quoted(request.filter) + " " +
         Quoted(request.defaultExtension) + "\n";
}

std::string WindowLines(const App& app) {
  std::string lines;
  for (const Window* window : app.windows()) lines += window->name() + " " + Quoted(window->caption()) + "\n";
  return lines;
}

std::string ControlLines(const Window& window) {
  std::string lines;
  for (const Control* control : window.controls()) {
    (lines += ControlKindName(control->kind())) +=
        " " + control->name() + " " + AnswerForm(control->Value()) + " " + RangeOf(*control) + " " +
        Quoted(control->caption()) + " " + Quoted(control->toolTip()) + "\n";
  }
  return lines;
}

}  // namespace pelorium
