// What each command does.
#include "script/commands.h"

#include <algorithm>
#include <chrono>

#include "base/numbers.h"
#include "controls/picture_box.h"
#include "platform/headless_platform.h"
#include "platform/picture_files.h"
#include "script/answers.h"
#include "script/events.h"
#include "script/places.h"
#include "script/script_runner.h"
#include "windows/shell/app_shell.h"
#include "windows/shell/history.h"

namespace pelorium {

namespace {

constexpr std::size_t kAnyNumber = 1000;

void Get(ScriptRunner& runner, const Words& words) {
  runner.out() << AnswerForm(FindPlace(runner.app(), words[1]).get()) << '\n';
}

// Of "Form55.HScroll24.max", if there is one.
const Control* ControlOf(const App& app, const std::string& place) {
  const std::size_t point = place.find('.');
  const Window* window = app.FindWindow(place.substr(0, point));
  if (window == nullptr || point == std::string::npos) return nullptr;
  const std::string rest = place.substr(point + 1);
  return window->Find(rest.substr(0, rest.find('.')));
}

// What a script sets can be undone like what a person does.
void Set(ScriptRunner& runner, const Words& words) {
  const HistoryEvent step(*runner.app().history, {ControlOf(runner.app(), words[1]), words[1]});
  FindPlace(runner.app(), words[1]).set(words[2]);
}

void Event(ScriptRunner& runner, const Words& words) {
  const UserEvent event = EventOf(words);
  CheckPossible(runner.app(), event);
  runner.app().Deliver(event);
}

void Answer(ScriptRunner& runner, const Words& words) { runner.platform().QueueAnswer(words[1]); }

void Cancel(ScriptRunner& runner, const Words&) { runner.platform().QueueAnswer({}); }

void Modal(ScriptRunner& runner, const Words& words) { runner.KeepModal(words[1]); }

void End(ScriptRunner&, const Words&) { throw ScriptError("end without a modal before it"); }

void Messages(ScriptRunner& runner, const Words&) {
  for (const std::string& message : runner.platform().TakeMessages()) runner.out() << Quoted(message) << '\n';
}

void Dialogs(ScriptRunner& runner, const Words&) {
  for (const FileDialogRequest& request : runner.platform().TakeDialogs())
    runner.out() << DialogLine(request);
}

void Faults(ScriptRunner& runner, const Words&) {
  for (const std::string& fault : runner.app().faults.TakeAll()) runner.out() << fault << '\n';
}

void PrintNotices(ScriptRunner& runner, const Words&) {
  for (const std::string& notice : runner.app().notices.TakeAll()) runner.out() << Quoted(notice) << '\n';
}

// The commands that print the rows FIRST..LAST of a Part.
template <std::string (*lines)(const ModelStore&, int, int, int)>
void PrintRows(ScriptRunner& runner, const Words& words) {
  const int part = IntegerWord(words[1], "PART");
  const int first = IntegerWord(words[2], "FIRST");
  const int last = IntegerWord(words[3], "LAST");
  runner.out() << lines(runner.app().model, part, first, last);
}

void Profile(ScriptRunner& runner, const Words& words) {
  runner.out() << ProfileLines(runner.app().model, IntegerWord(words[1], "P"));
}

PictureBox& FindPicture(App& app, const std::string& place) {
  auto* box = dynamic_cast<PictureBox*>(&FindControl(app, place));
  if (box == nullptr) throw ScriptError(place + " is not a picture");
  return *box;
}

void Save(ScriptRunner& runner, const Words& words) {
  SavePicture(FindPicture(runner.app(), words[1]).picture(), words[2]);
}

void Load(ScriptRunner& runner, const Words& words) {
  PictureBox& box = FindPicture(runner.app(), words[1]);
  const HistoryEvent step(*runner.app().history, {&box});
  LoadPicture(box.picture(), words[2]);
  box.NotifyChanged();
}

// By way of the menu, as on the desktop.
template <const char* item>
void PressMenuItem(ScriptRunner& runner, const Words&) {
  UserEvent press;
  press.window = "MDIForm1";
  press.control = item;
  runner.app().Deliver(press);
}

constexpr char kUndo[] = "undoit", kRedo[] = "redoit";

void Seed(ScriptRunner& runner, const Words& words) {
  runner.app().random.FixClockSeed(NumberWord(words[1], "N"));
}

void Time(ScriptRunner& runner, const Words& words) {
  const auto start = std::chrono::steady_clock::now();
  runner.Execute(Words(words.begin() + 1, words.end()));
  const std::chrono::duration<double, std::milli> taken = std::chrono::steady_clock::now() - start;
  runner.out() << "ms " << RoundedForm(taken.count(), 3) << '\n';
}

void List(ScriptRunner& runner, const Words& words) {
  runner.out() << (words.size() == 1 ? WindowLines(runner.app())
                                     : ControlLines(FindWindow(runner.app(), words[1])));
}

void Quit(ScriptRunner& runner, const Words&) { runner.Quit(); }

constexpr Command kCommands[] = {
    {"get", 1, 1, "PLACE", Get},
    {"set", 2, 2, "PLACE VALUE", Set},
    // The words of these are counted where they are read, beside what they mean.
    {"press", 0, kAnyNumber, {}, Event},
    {"drag", 0, kAnyNumber, {}, Event},
    {"type", 0, kAnyNumber, {}, Event},
    {"doubleclick", 0, kAnyNumber, {}, Event},
    {"key", 0, kAnyNumber, {}, Event},
    {"mouse", 0, kAnyNumber, {}, Event},
    {"resize", 0, kAnyNumber, {}, Event},
    {"wheel", 0, kAnyNumber, {}, Event},
    {"answer", 1, 1, "FILE", Answer},
    {"cancel", 0, 0, "", Cancel},
    {"modal", 1, 1, "WINDOW", Modal},
    {"end", 0, 0, "", End},
    {"messages", 0, 0, "", Messages},
    {"dialogs", 0, 0, "", Dialogs},
    {"faults", 0, 0, "", Faults},
    {"notices", 0, 0, "", PrintNotices},
    {"undo", 0, 0, "", PressMenuItem<kUndo>},
    {"redo", 0, 0, "", PressMenuItem<kRedo>},
    {"points", 3, 3, "PART FIRST LAST", PrintRows<PointLines>},
    {"faces", 3, 3, "PART FIRST LAST", PrintRows<FaceLines>},
    {"corners", 3, 3, "PART FIRST LAST", PrintRows<CornerLines>},
    {"profile", 1, 1, "P", Profile},
    {"save", 2, 2, "PICTURE FILE", Save},
    {"load", 2, 2, "PICTURE FILE", Load},
    {"seed", 1, 1, "N", Seed},
    {"time", 1, kAnyNumber, "COMMAND", Time},
    {"list", 0, 1, "[WINDOW]", List},
    {"quit", 0, 0, "", Quit},
};

}  // namespace

const Command* FindCommand(std::string_view name) {
  const auto found = std::find_if(std::begin(kCommands), std::end(kCommands),
                                  [name](const Command& command) { return command.name == name; });
  return found == std::end(kCommands) ? nullptr : found;
}

std::string UsageOf(const Command& command) {
  std::string usage(command.name);
  if (!command.usage.empty()) (usage += ' ') += command.usage;
  return usage;
}

}  // namespace pelorium
