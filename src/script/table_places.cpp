// The tables by name and subscripts.
#include "script/table_places.h"

#include <algorithm>
#include <cmath>
#include <concepts>
#include <limits>

#include "base/numbers.h"
#include "core/record_fields.h"
#include "script/parser.h"
#include "windows/shell/app_shell.h"
#include "windows/shell/history.h"

namespace pelorium {

namespace {

using Subscripts = std::vector<int>;

// A plain number of the program that is no record's field.
template <std::integral Number>
Place NumberPlace(Number& number) {
  return {[&number] { return static_cast<double>(number); },
          [&number](const std::string& word) { number = ToInteger<Number>(NumberWord(word, "value")); }};
}

Place NumberPlace(double& number) {
  return {[&number] { return number; },
          [&number](const std::string& word) { number = NumberWord(word, "value"); }};
}

// A number of single precision reads as the shortest digits that give the same single.
Place NumberPlace(float& number) {
  return {[&number] {
            return std::isfinite(number) ? WholeNumber(ShortestForm(number)) : static_cast<double>(number);
          },
          [&number](const std::string& word) { number = SingleWord(word, "value"); }};
}

// The memory of undo steps, in megabytes.
Place UndoLimitPlace(History& history) {
  constexpr double kMegabyte = 1 << 20;
  return {[&history] { return static_cast<double>(history.limit()) / kMegabyte; },
          [&history](const std::string& word) {
            history.SetLimit(ToInteger<std::uint32_t>(std::max(0.0, NumberWord(word, "value") * kMegabyte)));
          }};
}

template <typename Rec>
std::optional<Place> FieldPlace(Rec& record, const std::string& name) {
  const RecordField<Rec>* field = FindField<Rec>(name);
  if (field == nullptr) return std::nullopt;
  const bool isText = std::holds_alternative<std::string Rec::*>(field->member);
  return Place{[&record, name]() -> PropertyValue { return *GetField(record, name); },
               [&record, name, isText](const std::string& word) {
                 SetField(record, name, isText ? FieldValue(word) : FieldValue(NumberWord(word, "value")));
               }};
}

// The fields that a Part has once can be asked of its element 1 too: Points and Faces have some each.
std::optional<Place> PartPlace(ModelStore& model, int part, const std::string& field,
                               std::initializer_list<std::string_view> among) {
  if (std::find(among.begin(), among.end(), field) == among.end()) return std::nullopt;
  return FieldPlace(model.Part(part), field);
}

std::optional<Place> PointPlace(ModelStore& model, const Subscripts& at, const std::string& field) {
  if (auto place = FieldPlace(model.Points(at[0], at[1]), field)) return place;
  return at[1] == 1 ? PartPlace(model, at[0], field, {"Sections", "count", "vtcount"}) : std::nullopt;
}

std::optional<Place> FacePlace(ModelStore& model, const Subscripts& at, const std::string& field) {
  if (auto place = FieldPlace(model.Faces(at[0], at[1]), field)) return place;
  if (at[1] != 1) return std::nullopt;
  return PartPlace(model, at[0], field,
                   {"maxpoints", "minpoints", "maxfaces", "minfaces", "PartName", "vtfacecount"});
}

std::optional<Place> ProfilePointPlace(ModelStore& model, const Subscripts& at, const std::string& field) {
  ProfilePointRec& point = model.ProfilePts(at[0], at[1]);
  if (at[0] == 1) {
    if (auto place = FieldPlace(model.Profile(at[1]), field)) return place;
  }
  return FieldPlace(point, field);
}

std::optional<Place> WithoutField(Place place, const std::string& field) {
  return field.empty() ? std::optional(std::move(place)) : std::nullopt;
}

struct Table {
  std::string_view name;
  std::size_t subscripts;
  // Nothing when the table's records have no such field.
  std::optional<Place> (*find)(ModelStore& model, const Subscripts& at, const std::string& field);
};

constexpr Table kTables[] = {
    {"Points", 2, PointPlace},
    {"ProfilePts", 2, ProfilePointPlace},
    {"Faces", 2, FacePlace},
    {"MaterialGroups", 1,
     [](ModelStore& model, const Subscripts& at, const std::string& field) {
       return FieldPlace(model.MaterialGroups(at[0]), field);
     }},
    {"PointMark", 2,
     [](ModelStore& model, const Subscripts& at, const std::string& field) {
       return WithoutField(NumberPlace(model.PointMark(at[0], at[1])), field);
     }},
    {"FaceMark", 2,
     [](ModelStore& model, const Subscripts& at, const std::string& field) {
       return WithoutField(NumberPlace(model.FaceMark(at[0], at[1])), field);
     }},
    {"Part", 1,
     [](ModelStore& model, const Subscripts& at, const std::string& field) {
       return FieldPlace(model.Part(at[0]), field);
     }},
    {"Profile", 1,
     [](ModelStore& model, const Subscripts& at, const std::string& field) {
       return FieldPlace(model.Profile(at[0]), field);
     }},
};

std::string WithoutBlanks(std::string text) {
  std::erase_if(text, [](char c) { return c == ' ' || c == '\t'; });
  return text;
}

}  // namespace

std::optional<Subscripted> ParseSubscripts(const std::string& text) {
  const std::size_t open = text.find_first_of("(.");
  if (open == std::string::npos || text[open] == '.') return std::nullopt;
  const std::size_t close = text.find(')', open);
  if (close == std::string::npos) throw ScriptError("a bracket is not closed in " + text);
  Subscripted parsed{text.substr(0, open), {}, text.substr(close + 1)};
  if (!parsed.field.empty()) {
    if (parsed.field[0] != '.' || parsed.field.size() == 1)
      throw ScriptError("a field must follow in " + text);
    parsed.field.erase(0, 1);
  }
  std::string inside = WithoutBlanks(text.substr(open + 1, close - open - 1)) + ",";
  for (std::size_t comma; (comma = inside.find(',')) != std::string::npos; inside.erase(0, comma + 1)) {
    parsed.subscripts.push_back(IntegerWord(inside.substr(0, comma), "subscript"));
  }
  return parsed;
}

std::optional<Place> FindTablePlace(App& app, const std::string& text) {
  const std::optional<Subscripted> parsed = ParseSubscripts(text);
  if (!parsed) return std::nullopt;
  const Table* table = std::find_if(std::begin(kTables), std::end(kTables),
                                    [&](const Table& candidate) { return candidate.name == parsed->name; });
  if (table == std::end(kTables)) throw ScriptError("there is no table " + Quoted(parsed->name));
  if (parsed->subscripts.size() != table->subscripts) {
    throw ScriptError(parsed->name + " takes " + std::to_string(table->subscripts) + " subscript" +
                      (table->subscripts == 1 ? "" : "s") + ", not " +
                      std::to_string(parsed->subscripts.size()));
  }
  std::optional<Place> place = table->find(app.model, parsed->subscripts, parsed->field);
  if (!place) throw ScriptError("there is no field " + text);
  return place;
}

std::optional<Place> FindSharedPlace(App& app, const std::string& text) {
  ShadedPose& pose = app.shadedPose;
  if (text == "UndoLimit") return UndoLimitPlace(*app.history);
  if (text == "TessCount") return NumberPlace(app.TessCount);
  if (text == "RotX") return NumberPlace(pose.RotX);
  if (text == "RotY") return NumberPlace(pose.RotY);
  if (text == "RotZ") return NumberPlace(pose.RotZ);
  if (text == "ShadeMoveX") return NumberPlace(pose.ShadeMoveX);
  if (text == "ShadeMoveY") return NumberPlace(pose.ShadeMoveY);
  if (text == "ShadeMoveZ") return NumberPlace(pose.ShadeMoveZ);
  return std::nullopt;
}

}  // namespace pelorium
