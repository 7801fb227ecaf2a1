// Comparing the program with what it was.
#include "program_watch.h"

#include <algorithm>
#include <cmath>
#include <cstring>

#include "base/numbers.h"
#include "controls/boxed_bar.h"
#include "controls/buttons.h"
#include "controls/lists.h"
#include "controls/picture_box.h"
#include "controls/rich_text_box.h"
#include "controls/rich_text_format.h"
#include "core/record_fields.h"
#include "script/parser.h"
#include "support/harness.h"

namespace pelorium {

namespace {

namespace fs = std::filesystem;

constexpr std::size_t kMostLines = 12;  // of one window, or of the tables; more are summed up
constexpr std::size_t kLongestText = 60;

// FNV-1a, eight bytes at a time.
class Sum {
 public:
  void Add(std::uint64_t word) { sum_ = (sum_ ^ word) * 1099511628211U, sum_ ^= sum_ >> 32; }
  void Add(std::string_view text) {
    for (; !text.empty(); text.remove_prefix(std::min(text.size(), sizeof(std::uint64_t)))) {
      std::uint64_t word = 0;
      std::memcpy(&word, text.data(), std::min(text.size(), sizeof word));
      Add(word);
    }
  }
  void Add(double number) {
    const double rounded = RoundTo(number, 4) + 0.0;  // -0 counts as 0
    std::uint64_t bits = 0;
    std::memcpy(&bits, &rounded, sizeof bits);
    Add(bits);
  }
  std::uint64_t value() const { return sum_; }
  std::string Text() const {
    constexpr const char* kDigits = "0123456789abcdef";
    std::string text = "#";
    for (int shift = 0; shift < 20; shift += 4) text += kDigits[(sum_ >> shift) & 15];
    return text;
  }

 private:
  std::uint64_t sum_ = 14695981039346656037U;
};

std::string SumOf(std::string_view text) {
  Sum sum;
  sum.Add(text);
  return sum.Text();
}

std::string Shown(const PropertyValue& value) {
  if (const double* number = std::get_if<double>(&value)) return RoundedForm(*number + 0.0, 4);
  const std::string& text = std::get<std::string>(value);
  const bool isPath = text.starts_with('/');  // its folder is masked later
  if (text.size() <= kLongestText || isPath) return Quoted(text);
  return Quoted(text.substr(0, kLongestText / 4)) + ".. " + std::to_string(text.size()) + " bytes " +
         SumOf(text);
}

void Join(std::vector<std::string>& lines, const std::vector<std::string>& more, const std::string& what) {
  const std::size_t shown = more.size() > kMostLines ? kMostLines - 1 : more.size();
  lines.insert(lines.end(), more.begin(), more.begin() + static_cast<std::ptrdiff_t>(shown));
  if (shown == more.size()) return;
  Sum sum;
  for (std::size_t i = shown; i < more.size(); ++i) sum.Add(more[i]);
  lines.push_back("... and " + std::to_string(more.size() - shown) + " more of " + what + " " + sum.Text());
}

// What is looked at of every control, in this order.
constexpr const char* kFacets[] = {"",           "caption",     "tooltip", "enabled",    "visible",
                                   "left",       "top",         "width",   "height",     "min",
                                   "max",        "stands for",  "holds",   "scalewidth", "scaleheight",
                                   "pixelwidth", "pixelheight", "ground"};

std::vector<PropertyValue> LookOf(const Control& c) {
  std::vector<PropertyValue> look = {
      c.Value(), c.caption(), c.toolTip(), double(c.enabled()), double(c.visible()), c.left,
      c.top,     c.width,     c.height};
  if (look[0] == look[1]) look[1] = "";
  look.resize(std::size(kFacets), 0.0);
  if (const auto* bar = dynamic_cast<const ScrollBar*>(&c)) {
    look[9] = double(bar->min()), look[10] = double(bar->max()), look[11] = bar->Shown();
  } else if (const auto* progress = dynamic_cast<const ProgressBar*>(&c)) {
    look[10] = double(progress->max());
  } else if (const auto* list = dynamic_cast<const ListBox*>(&c)) {
    std::string items;
    for (const std::string& item : list->items()) items += item + "|";
    look[12] = items;
  } else if (const auto* rich = dynamic_cast<const RichTextBox*>(&c)) {
    look[12] = RichTextFile(rich->text());
  } else if (const auto* box = dynamic_cast<const PictureBox*>(&c)) {
    const Picture& picture = box->measures();
    look[13] = picture.ScaleWidth(), look[14] = picture.ScaleHeight();
    look[15] = double(picture.PixelWidth()), look[16] = double(picture.PixelHeight());
  } else if (const auto* text = dynamic_cast<const TextBox*>(&c)) {
    look[17] = double(text->ground() == TextBox::Ground::Button);
  }
  return look;
}

// The changes of one field over all records of a table.
struct FieldChanges {
  int count = 0;
  int leastA = 0, mostA = 0, leastB = 0, mostB = 0;
  std::string first;  // "0 -> 5"
  Sum sum;
};

class TableChanges {
 public:
  // A record of the table at (a, b); b is -1 where one number tells it.
  template <typename Rec>
  void Compare(const char* table, int a, int b, Rec& before, const Rec& now) {
    const auto fields = FieldsOf<Rec>();
    for (std::size_t i = 0; i < fields.size(); ++i) {
      const auto isSame = [&](const RecordField<Rec>& other) { return other.member == fields[i].member; };
      if (std::any_of(fields.begin(), fields.begin() + static_cast<std::ptrdiff_t>(i), isSame)) continue;
      std::visit([&](auto member) { Field(table, fields[i].name, a, b, before.*member, now.*member); },
                 fields[i].member);
    }
  }

  template <typename Value>
  void Field(const char* table, std::string_view name, int a, int b, Value& before, const Value& now) {
    if (before == now || (before != before && now != now)) return;
    // The corners' own copies of places are one thing.
    const bool isCorner = std::string_view(table) == "Faces" && name.size() == 3 && name[0] == 'c';
    FieldChanges& changes = ChangesOf(std::string(table) + "*" + (isCorner ? "corners" : std::string(name)));
    const std::string from = Text(before), to = Text(now);
    if (changes.count++ == 0) {
      changes.leastA = changes.mostA = a, changes.leastB = changes.mostB = b;
      changes.first = from + " -> " + to;
    }
    changes.leastA = std::min(changes.leastA, a), changes.mostA = std::max(changes.mostA, a);
    changes.leastB = std::min(changes.leastB, b), changes.mostB = std::max(changes.mostB, b);
    changes.sum.Add(static_cast<std::uint64_t>(a * 100000 + b));
    changes.sum.Add(to);
    before = now;
  }

  std::vector<std::string> Lines() const {
    std::vector<std::string> lines;
    for (const auto& [name, changes] : fields_) {
      const std::size_t star = name.find('*');
      std::string line = name.substr(0, star) + "(" + Span(changes.leastA, changes.mostA);
      if (changes.leastB >= 0) line += "," + Span(changes.leastB, changes.mostB);
      line += ")." + name.substr(star + 1) + " ";
      if (changes.count > 1) line += std::to_string(changes.count) + " changed, first ";
      line += changes.first;
      if (changes.count > 1) line += " " + changes.sum.Text();
      lines.push_back(line);
    }
    return lines;
  }

 private:
  FieldChanges& ChangesOf(const std::string& name) {
    for (auto& [known, changes] : fields_) {
      if (known == name) return changes;
    }
    return fields_.emplace_back(name, FieldChanges()).second;
  }
  static std::string Text(const std::string& text) { return Quoted(text); }
  static std::string Text(double number) { return Shown(number); }
  static std::string Span(int first, int last) {
    return std::to_string(first) + (first == last ? "" : ".." + std::to_string(last));
  }

  std::vector<std::pair<std::string, FieldChanges>> fields_;
};

// The records 1..count of a Part. Bytes first: nearly always all are equal.
template <typename Rec>
void CompareRecords(TableChanges& changes, const char* table, int part, Rec* before, const Rec* now,
                    int count) {
  const auto isEqual = [](const void* a, const void* b, int records) {
    return std::memcmp(a, b, static_cast<std::size_t>(records) * sizeof(Rec)) == 0;
  };
  if (isEqual(before, now, count)) return;
  for (int i = 0; i < count; ++i) {
    if (!isEqual(before + i, now + i, 1)) changes.Compare(table, part, i + 1, before[i], now[i]);
  }
  std::memcpy(static_cast<void*>(before), now,
              static_cast<std::size_t>(count) * sizeof(Rec));  // what is between
}

void CompareParts(TableChanges& changes, ModelStore& before, const ModelStore& now) {
  for (int part = 0; part < kParts; ++part) {
    changes.Compare("Part", part, -1, before.Part(part), now.Part(part));
    auto& was = before.Part(part).grid;
    const auto& is = now.Part(part).grid;
    const auto text = [](const auto& grid) {
      return grid ? std::to_string(grid->width) + " x " + std::to_string(grid->rows) : "none";
    };
    std::string wasText = text(was);
    changes.Field("Part", "grid", part, -1, wasText, text(is));
    was = is;
    CompareRecords(changes, "Points", part, &before.Points(part, 1), &now.Points(part, 1), kMaxPoints);
    for (int i = 1; i <= kMaxPoints; ++i) {
      std::int16_t& mark = before.PointMark(part, i);
      if (mark != now.PointMark(part, i))
        changes.Field("PointMark", "mark", part, i, mark, now.PointMark(part, i));
    }
    CompareRecords(changes, "Faces", part, &before.Faces(part, 1), &now.Faces(part, 1), kMaxFaces);
  }
}

void CompareProfiles(TableChanges& changes, ModelStore& before, const ModelStore& now) {
  for (int profile = 0; profile <= kMaxProfile; ++profile) {
    changes.Compare("Profile", profile, -1, before.Profile(profile), now.Profile(profile));
    for (int point = 0; point <= kMaxLayer; ++point) {
      changes.Compare("ProfilePts", point, profile, before.ProfilePts(point, profile),
                      now.ProfilePts(point, profile));
    }
  }
}

// Without what is another each time: the folder, and the number of the process behind ".saving-".
std::string Masked(std::string line, const std::string& folder) {
  for (std::size_t at; (at = line.find(folder)) != std::string::npos;) line.replace(at, folder.size(), "~");
  constexpr std::string_view kSaving = ".saving-";
  const std::size_t at = line.find(kSaving);
  if (at == std::string::npos) return line;
  const std::size_t number = at + kSaving.size();
  return line.erase(number, line.find_first_not_of("0123456789", number) - number);
}

std::string NameOf(const Control& control, const std::string& home) {
  return control.owner().name() == home ? control.name() : control.FullName();
}

}  // namespace

std::string WatchedPlatform::AskFileName(const FileDialogRequest& request) {
  notes_.push_back(std::string(request.save ? "asks to save " : "asks to open ") + Quoted(request.title) +
                   " " + Quoted(request.folder.string()) + " " + Quoted(request.filter));
  if (request.save)
    return (request.folder / "made").string() +
           request.defaultExtension.substr(std::min<std::size_t>(1, request.defaultExtension.size()));
  std::error_code error;
  for (const auto& entry : fs::directory_iterator(request.folder, error)) {
    const std::string name = entry.path().filename().string();
    if (name.starts_with("sample") &&
        MatchesPattern(name, request.filter.substr(request.filter.find('|') + 1)))
      return entry.path().string();
  }
  return {};
}

void WatchedPlatform::ShowMessage(const std::string& text) { notes_.push_back("says " + Shown(text)); }

void WatchedPlatform::RunModal(Window& window) {
  notes_.push_back("shows " + window.name() + " modally");
  HeadlessPlatform::RunModal(window);
}

void WatchedPlatform::SetClipboardText(const std::string& text) {
  notes_.push_back("copies " + Shown(text));
  HeadlessPlatform::SetClipboardText(text);
}

void WatchedPlatform::SetClipboardPicture(const Picture& picture) {
  notes_.push_back("copies a picture " + std::to_string(picture.PixelWidth()) + " x " +
                   std::to_string(picture.PixelHeight()));
  HeadlessPlatform::SetClipboardPicture(picture);
}

void WatchedPlatform::Print(const std::string& text) { notes_.push_back("prints " + Shown(text)); }

void WatchedPlatform::OpenInBrowser(const std::string& address) {
  notes_.push_back("opens " + Shown(address));
}

bool WatchedPlatform::StartSystemInformation() {
  notes_.push_back("starts the system information");
  return false;
}

void ProgramWatch::Follow(App& app, WatchedPlatform& platform) {
  app_ = &app;
  platform_ = &platform;
  app.host.listener = this;
  controls_.clear();
  pixels_.clear();
  TakeChanges();
}

std::vector<std::string> ProgramWatch::TakeChanges(const std::string& home) {
  Lines lines;
  CompareTables(lines);
  CompareControls(lines, home);
  CompareWindows(lines);
  CompareFiles(lines);
  CompareRest(lines);
  for (std::string& line : lines) line = Masked(line, app_->applicationPath.string());
  told_.clear();
  return lines;
}

// 0 while nothing was drawn.
std::uint64_t ProgramWatch::PixelsOf(Control& control) {
  auto* box = dynamic_cast<PictureBox*>(&control);
  if (box == nullptr) return 0;
  Picture& picture = box->picture();
  if (picture.Revision() == 0 && picture.overlay.empty()) return 0;
  auto& [revision, pixels] = pixels_[box];
  if (revision != picture.Revision()) {
    revision = picture.Revision();
    Sum sum;
    for (const std::uint32_t pixel : picture.Pixels()) sum.Add(std::uint64_t{pixel});
    pixels = sum.value();
  }
  Sum sum;
  sum.Add(pixels);
  for (const OverlayShape& shape : picture.overlay) {
    for (const float number :
         {shape.x0, shape.y0, shape.x1, shape.y1, float(shape.colour), float(shape.form)})
      sum.Add(double{number});
  }
  return sum.value();
}

void ProgramWatch::CompareControls(Lines& lines, const std::string& home) {
  for (Window* window : app_->windows()) {
    Lines own;
    for (Control* control : window->controls()) {
      std::vector<PropertyValue> look = LookOf(*control);
      look.push_back(std::to_string(PixelsOf(*control)));
      auto& before = controls_[control];
      if (before == look) continue;
      const bool isFirst = before.empty();
      before.swap(look);
      if (isFirst) continue;
      std::string line = NameOf(*control, home);
      for (std::size_t i = 0; i < std::size(kFacets); ++i) {
        if (before[i] == look[i] || (i == 11 && before[11] == before[0])) continue;
        (line += ' ') += kFacets[i];
        if (*kFacets[i] != '\0') line += ' ';
        line += Shown(look[i]) + " -> " + Shown(before[i]);
      }
      if (before.back() != look.back()) line += " picture " + SumOf(std::get<std::string>(before.back()));
      if (!told_.contains(control)) line += " (the face is not told)";
      own.push_back(line);
    }
    Join(lines, own, window->name());
  }
}

void ProgramWatch::CompareWindows(Lines& lines) {
  for (const Window* window : app_->windows()) {
    const std::string& name = window->name();
    const std::map<std::string, PropertyValue> now = {{name + " caption", window->caption()},
                                                      {name + " visible", double(window->visible())},
                                                      {name + " left", window->left()},
                                                      {name + " top", window->top()},
                                                      {name + " shown", double(window->shows())}};
    for (const auto& [what, value] : now) {
      auto& before = windows_[what];
      if (before != value) lines.push_back(what + " " + Shown(before) + " -> " + Shown(value));
      before = value;
    }
  }
}

void ProgramWatch::CompareTables(Lines& lines) {
  TableChanges changes;
  CompareParts(changes, tables_, app_->model);
  CompareProfiles(changes, tables_, app_->model);
  for (int group = 0; group <= kMaxGroup; ++group)
    changes.Compare("MaterialGroups", group, -1, tables_.MaterialGroups(group),
                    app_->model.MaterialGroups(group));
  Join(lines, changes.Lines(), "the tables");
}

void ProgramWatch::CompareRest(Lines& lines) {
  const ShadedPose& pose = app_->shadedPose;
  RandomSeries random = app_->random;
  const std::map<std::string, PropertyValue> now = {
      {"TessCount", double(app_->TessCount)},
      {"RotX", pose.RotX},
      {"RotY", pose.RotY},
      {"RotZ", pose.RotZ},
      {"ShadeMoveX", pose.ShadeMoveX},
      {"ShadeMoveY", pose.ShadeMoveY},
      {"ShadeMoveZ", pose.ShadeMoveZ},
      {"exitRequested", double(app_->exitRequested)},
      {"held actions", double(app_->automaticActionsHeld)},
      {"random series at", random.Next()},
  };
  for (const auto& [what, value] : now) {
    if (rest_[what] != value) lines.push_back(what + " " + Shown(rest_[what]) + " -> " + Shown(value));
    rest_[what] = value;
  }
  for (const std::string& note : platform_->TakeNotes()) lines.push_back(note);
  for (const std::string& notice : app_->notices.TakeAll()) lines.push_back("notice " + Quoted(notice));
  app_->faults.TakeAll();
}

void ProgramWatch::CompareFiles(Lines& lines) {
  std::map<std::string, std::string> now;
  for (const auto& entry : fs::recursive_directory_iterator(app_->applicationPath)) {
    if (!entry.is_regular_file()) continue;
    const std::string bytes = BytesOf(entry.path());
    now[entry.path().lexically_relative(app_->applicationPath).string()] =
        std::to_string(bytes.size()) + " bytes " + SumOf(bytes);
  }
  for (const auto& [name, text] : now) {
    if (files_[name] != text) lines.push_back("file " + name + ": " + text);
  }
  for (const auto& [name, text] : files_) {
    if (!now.contains(name)) lines.push_back("file " + name + " is gone");
  }
  files_ = std::move(now);
}

std::string LayoutLines(const LayoutItem& item, int depth) {
  constexpr const char* kKinds[] = {"Column", "Row", "Frame", "BarRow", "Flow", "Single", "Pane", "Fold"};
  std::string lines(static_cast<std::size_t>(2 * depth), ' ');
  lines += kKinds[static_cast<int>(item.kind)];
  if (!item.title.empty()) lines += " " + Quoted(item.title);
  if (!item.toolTip.empty()) lines += " tip " + Quoted(item.toolTip);
  if (item.stretches) lines += " stretches";
  if (item.isUpright) lines += " upright";
  if (item.scrolls) lines += " scrolls";
  if (item.isCompact) lines += " compact";
  for (const Control* control : item.controls) lines += " " + control->name();
  lines += "\n";
  for (const LayoutItem& inner : item.items) lines += LayoutLines(inner, depth + 1);
  return lines;
}

}  // namespace pelorium
