// Opening a file by its kind.
#include "windows/frame/open_file.h"

#include <algorithm>
#include <string>

#include "interchange/file_kind.h"
#include "windows/shell/app_shell.h"

namespace pelorium {

namespace {

struct Opener {
  FileKind kind;
  const char *window, *button;
  const char* box = nullptr;  // where the button finds the name; without one it asks
};

constexpr Opener kOpeners[] = {
    {FileKind::Project, "Form31", "Command15"},      {FileKind::PlainObj, "Form14", "Command25"},
    {FileKind::SlashObj, "Form14", "Command1"},      {FileKind::DxfTriangles, "Form12", "Command12"},
    {FileKind::DxfQuads, "Form12", "Command13"},     {FileKind::DxfMesh, "Form12", "Command2"},
    {FileKind::Uvs, "Form14", "Command2", "Text13"}, {FileKind::TextureFile, "Form31", "Command11"},
    {FileKind::Tuv, "convert", "Command1"},          {FileKind::TextPart, "shapes2", "Command22", "Text11"},
    {FileKind::Profiles, "frmsaveprof", "Command2"}, {FileKind::Picture, "Form47", "Command3"},
};

const Opener* OpenerOf(const App& app, const std::filesystem::path& path) {
  FileKind kind = FileKind::Unknown;
  try {
    kind = KindOfFile(path);
  } catch (const Fault&) {
    return nullptr;
  }
  const auto found = std::find_if(std::begin(kOpeners), std::end(kOpeners),
                                  [kind](const Opener& opener) { return opener.kind == kind; });
  return found == std::end(kOpeners) || app.FindWindow(found->window) == nullptr ? nullptr : found;
}

}  // namespace

void OpenFile(App& app, const std::filesystem::path& path, const OpeningFace& face) {
  const Opener* opener = OpenerOf(app, path);
  if (opener == nullptr) {
    app.notices.Give(path.filename().string() + " is no file that can be opened here", NoticeKind::Fault);
    return;
  }
  UserEvent event;
  event.window = opener->window;
  if (opener->box == nullptr) {
    face.answerNextDialog(path);
  } else {
    event.control = opener->box;
    event.action = UserAction::Type;
    event.text = path.string();
    face.deliver(event);
  }
  event.control = opener->button;
  event.action = UserAction::Press;
  face.deliver(event);
}

}  // namespace pelorium
