// The command set.
#include "windows/frame/command_table.h"

#include <algorithm>
#include <string>

#include "windows/facetools/facetools_windows.h"
#include "windows/facetools/freeface_free_faces.h"
#include "windows/frame/form31_project_files.h"
#include "windows/frame/frame_windows.h"
#include "windows/frame/image_commands.h"
#include "windows/frame/mdi_form1.h"
#include "windows/frame/part_commands.h"
#include "windows/frame/quick_save.h"
#include "windows/geometry/geometry_windows.h"
#include "windows/geometry/revolveprof_revolve_profile.h"
#include "windows/geometry/weld_seam.h"
#include "windows/interchange/combine_parts.h"
#include "windows/shell/app_shell.h"
#include "windows/shell/hooks.h"
#include "windows/view/command_row.h"
#include "windows/view/form36_view.h"
#include "windows/view/shared_parameters.h"
#include "windows/view/view_windows.h"

namespace pelorium {

namespace {

// The program's own site. The name is one of those reserved for examples until there is a real one.
constexpr const char* kWebSite = "https://pelorium.example/";

void ShowEstimatedArea(App& app) { app.frame->form31.ShowEstimatedArea(); }
void OpenWebSite(App& app) { app.platform.OpenInBrowser(kWebSite); }
void ArrangeWindows(App& app) { app.platform.ArrangeWindows(); }

// The pages and the options stay.
void ClosePanels(App& app) {
  for (Window* window : app.windows()) {
    if (window->role() == WindowRole::Tool && window->visible()) window->Close();
  }
}

void Exit(App& app) { app.frame->mdiForm1.Exit(); }

void RevolvePlainly(App& app) {
  app.geometry->revolveprof.ResetEffects();
  app.geometry->revolveprof.Command15.Press();
}

void RevolveAndJoin(App& app) {
  RevolvePlainly(app);
  app.geometry->revolveprof.Command18.Press();
}

void ImportCurrentProfile(App& app) {
  app.facetools->freeface.ImportProfiles(CurrentProfile(app), CurrentProfile(app));
}

void ImportAllProfiles(App& app) { app.facetools->freeface.Command13.Press(); }

// "Form31.Command15" as window and control.
Control* FindControl(const App& app, std::string_view place) {
  const std::size_t dot = place.find('.');
  if (dot == std::string_view::npos) return nullptr;
  const Window* window = app.FindWindow(place.substr(0, dot));
  return window == nullptr ? nullptr : window->Find(place.substr(dot + 1));
}

void SwitchOn(App& app, std::string_view place) {
  if (auto* option = dynamic_cast<OptionButton*>(FindControl(app, place))) option->SetValue(true);
}

const MenuCommand* FindMenuCommand(std::string_view name) {
  const auto found = std::find_if(MenuCommands().begin(), MenuCommands().end(),
                                  [name](const MenuCommand& command) { return command.name == name; });
  return found == MenuCommands().end() ? nullptr : &*found;
}

// The bars that follow are moved by the program, not by a person: no automatic action comes of it.
void ChangeParts(App& app, const MenuCommand& command, const Control& pressed) {
  const HoldAutomaticActions hold(app);
  Trapped(app.faults, pressed.FullName(), [&] {
    command.run(app);
    if (command.kind == CommandKind::Change) SyncFaceCorners(app);
  });
  RefreshViews(app);
}

// The one button of the row that repeats no menu item.
const MenuCommand kCollapse = {
    .menu = "",
    .caption = "Collapse into part#",
    .name = "collapse",
    .kind = CommandKind::Change,
    .run = CollapseIntoCurrent,
    .toolTip =
        "both Parts become the current one, rounded to 3 decimals, without faces that are off and in "
        "one group; the other Part is erased, and the current profile loses its points"};

const MenuCommand* CommandOf(const CommandButton& button) {
  return button.menuItem.empty() ? &kCollapse : FindMenuCommand(button.menuItem);
}

}  // namespace

const std::vector<MenuCommand>& MenuCommands() {
  using enum CommandKind;
  static const std::vector<MenuCommand> kCommands = {
      {"", "Files |", "fileit"},
      {"fileit", "Open project", "openproj", Press, "Form31.Command15"},
      {"fileit", "Save project", "saveproj", Press, "Form31.Command14"},
      {"fileit", "Open texture uv's file", "opentex", Press, "Form31.Command11"},
      {"fileit", "Save texture uv's file", "savetex", Press, "Form31.Command9"},
      {"fileit", "Open Profiles", "openprof", Press, "frmsaveprof.Command2"},
      {"fileit", "Save Profiles", "saveprof", Press, "frmsaveprof.Command1"},
      {"fileit", "Export Profile Info -- parametric ", "exportprofpara", Press, "frmsaveprof.Command3"},
      {"fileit", "Export Profile Info", "exportprofinfome", Press, "frmsaveprof.Command4"},
      {"fileit", "Save/Open project ", "openinfo", Show, "Form31"},
      {"fileit", "Import/Export obj", "saveobj", Show, "Form14"},
      {"fileit", "Import/Export dxf", "dxfsave", Show, "Form12"},
      {"fileit", "Open Image", "openimage", Press, "Form47.Command3"},
      {"fileit", "Save Image to bmp", "saveimage", Press, "Form47.Command4"},
      {"fileit", "Save/Open image", "openimages", Show, "Form47"},
      {"fileit", "Import/Export uv's file", "importuvsme", Show, "uvimportexport"},
      {"fileit", "Export Obj Info (Currently Chosen Part#)", "exportobjinfo2", Press, "Form31.Command13"},
      {"fileit", "Export Obj Info (All part#'s)", "exportinfo", Press, "Form31.Command12"},
      {"fileit", "Import Ultimate Unwrap TUV", "convertit", Show, "convert"},
      {"fileit", "Exit", "exiter", Run, "", Exit},

      {"", "Shortcuts |", "shortcutit"},
      {"shortcutit", "Q save", "memsave", Run, "", QuickSave},
      {"shortcutit", "Q get", "restoreit", Run, "", QuickGet},
      {"shortcutit", "Draw tesselated", "tessie", SwitchOn, "Form51.Option3"},
      {"shortcutit", "Profile view", "profileview", SwitchOn, "Form51.Option1"},
      {"shortcutit", "Top view", "topview", SwitchOn, "Form51.Option5"},
      {"shortcutit", "Front view", "frontview", SwitchOn, "Form51.Option2"},
      {"shortcutit", "Side view", "sideview", SwitchOn, "Form51.Option6"},
      {"shortcutit", "3dview", "dddviewit", SwitchOn, "Form51.Option4"},
      {"shortcutit", "Shaded view", "rev1", Press, "Form51.Command2"},
      {"shortcutit", "Tri View", "triviewitme", SwitchOn, "Form51.Option16"},
      {"shortcutit", "Revolve", "revolveit1", Run, "", RevolvePlainly},
      {"shortcutit", "Revolve-petals", "revolve2", Press, "revolveprof.Command15"},
      {"shortcutit", "Revolve prof--col circle", "revolve3", Run, "", RevolveAndJoin},
      {"shortcutit", "Join Ends", "joinit", Press, "revolveprof.Command18"},

      {"", "Create/Edit Profiles |", "editprofme"},
      {"editprofme", "Draw/Edit Profile", "formulait", Edit, "Formulas"},
      {"editprofme", "More Edit Options", "editprofpri", Edit, "Formulas3frm"},
      {"editprofme", "Profile formulas", "formulas2me", Edit, "Formulas2frm"},

      {"", "Create Geometry |", "creatit"},
      {"creatit", "Revolve Profile", "rev", Edit, "revolveprof"},
      {"creatit", "Extrude Profile", "extrudeme", Edit, "Form55"},
      {"creatit", "Create Mesh", "triangleobj", EditAndOn, "specialeffects6", nullptr, "Form51.Option3"},
      {"creatit", "Create/Edit Materials", "mterials", Edit, "material"},
      {"creatit", "Profile import-Currently chosen", "importprofiles", Run, "", ImportCurrentProfile},
      {"creatit", "Profile Import (all)", "profimportmeall", Run, "", ImportAllProfiles},

      {"", "Edit Geometry |", "editit"},
      {"editit", "Edit ", "special5", Edit, "specialeffects5"},
      {"editit", "Precise Edit", "editgeo", Edit, "Form5"},
      {"editit", "Special effects", "special1", Edit, "specialeffects1"},
      {"editit", "Center ", "centerme", Change, "", CenterPart, "",
       "moves the Part so that its point 1 lies on the origin of Precise Edit"},
      {"editit", "All points on", "ptson", Mark, "", SwitchAllPointsOn, "",
       "all points of the Part are chosen"},
      {"editit", "All pts off", "ptsoff", Mark, "", SwitchAllPointsOff, "", "no point of the Part is chosen"},
      {"editit", "Invert pts", "invertpts", Mark, "", InvertChosenPoints, "",
       "points from Points Start to Points End that are on go off, the others on"},
      {"editit", "Join faces/points", "joinitall", Run, "", JoinClosePoints, "",
       "points within 2 units of each other are moved onto one place: a small model collapses"},
      {"editit", "Delete turned off Faces/points", "eraseoff", Mark, "", DeleteTurnedOff, "",
       "faces that are off fall together on point 1, and all points within 2 units of each other are joined: "
       "a small model collapses. The counts stay"},
      {"editit", "Subdivide (tri)", "subdivideme", Mark, "", Subdivide, "",
       "splits each face that is on in three at its middle, each with points of its own; the others are "
       "dropped"},
      {"editit", "Combine all to Part#", "combineallme", Change, "", CombineAll, "",
       "both Parts become the current one, which is centered; the other one stays"},
      {"editit", "Combine all to Part#--Erase ", "combineit2", Change, "", CombineAllAndErase, "",
       "both Parts become the current one, which is centered; the other one is erased"},

      {"", "Edit Faces |", "editfaces2"},
      {"editfaces2", "Erase Faces", "erasefacesme", Change, "", EraseAllFaces, "",
       "empties all faces of the Part; its points and counts stay"},
      {"editfaces2", "All Faces on", "faceon", Mark, "", SwitchAllFacesOn, "",
       "all faces of the Part are on"},
      {"editfaces2", "All Faces off", "facesoff", Mark, "", SwitchAllFacesOff, "",
       "all faces of the Part are off: exports and rebuilding leave them out"},
      {"editfaces2", "Invert Faces", "invert", Mark, "", InvertFaceRange, "",
       "faces from Faces Start to Faces End that are on go off, the others on"},
      {"editfaces2", "Faces on (range)", "facesiton", Mark, "", SwitchFaceRangeOn, "",
       "the faces from Faces Start to Faces End are on"},
      {"editfaces2", "Faces off (range)", "faceitoff", Mark, "", SwitchFaceRangeOff, "",
       "the faces from Faces Start to Faces End are off"},
      {"editfaces2", "Combine all  to Part# (erase alll)", "collapseit", Change, "", CombineAllAndErase, "",
       "both Parts become the current one, which is centered; the other one is erased"},
      {"editfaces2", "Edit Face/Vertex and Info", "editfaces", Edit, "editbyface"},
      {"editfaces2", "Freeface Edit/Create", "freefacesme", Edit, "freeface"},
      {"editfaces2", "Disjoin faces", "disjoinit", Mark, "", Disjoin, "",
       "gives each face that is on three points of its own; the others are dropped"},
      {"editfaces2", "Flat Pattern/Pick Faces ", "unfoldme", Edit, "unfold"},

      {"", "Erase |", "eraseme"},
      {"eraseme", "Erase", "eraseitya"},
      {"eraseitya", "Erase all but Current Part", "eraseor", Change, "", EraseOtherParts, "",
       "empties the other Part and what was copied"},
      {"eraseitya", "Erase Current Part", "erasecurrnt", Change, "", EraseCurrentPart, "",
       "empties the current Part"},
      {"eraseitya", "Erase all ", "erase", Change, "", EraseAll, "",
       "empties both Parts and what was copied"},

      {"", "Image  |", "imageops"},
      {"imageops", "Clear image", "clearimage", Run, "", ClearImage},
      {"imageops", "Send to clipboard model wireframe image (foreground)", "senittoboard", Run, "",
       SendForeground},
      {"imageops", "Send to clipboard painted image  (background image)", "senditclip", Run, "",
       SendBackground},
      {"imageops", "Get from Clipboard (to background image)", "getitclip", Run, "", GetBackground},
      {"imageops", "Draw Greylevels (background image)", "editgrays", Show, "Specialeffects3"},
      {"imageops", "Graylevel Plasma (background image)", "plasmait", Show, "Plasma"},
      {"imageops", "Perlin Noise (background)", "perlinit", Show, "frmPerlinNoise"},
      {"imageops", "Goto Imagemaker", "textureit", Show, "texture"},

      {"", "  View/Edit Options    |", "viewitere"},
      {"viewitere", "Total Sqr Units estimate for Part#", "estarea", Run, "", ShowEstimatedArea},
      {"viewitere", "Obj view window", "viewerwin", Show, "Form36"},
      {"viewitere", "View options", "viewit", Show, "Form51"},

      {"", "Copy |", "copypart", Mark, "", CopyToBuffer, "", "copies the current Part, without its mapping"},
      {"", "Paste |", "pastepart", Change, "", PasteBuffer, "", "what was copied replaces the current Part"},
      {"", "Paste Into |", "pasteintome", Change, "", PasteBufferInto, "",
       "what was copied is added to the current Part"},
      {"", "Parts |", "getparts"},
      {"getparts", "Preset Parts", "builtins", Show, "Dialog"},
      {"getparts", ".obj Parts", "shapesit", Show, "shapes"},
      {"getparts", ".txt Parts", "txtparts", Show, "shapes2"},
      {"", "Help/ Notes |", "helpnow", Show, "helpme"},
      {"", "Help/Web |", "webitspiderman", Run, "", OpenWebSite},
      {"", "About", "aboutit", Show, "frmAbout"},

      {"", "Window", "windowit"},
      {"windowit", "Close panels", "closepanels", Run, "", ClosePanels},
      {"windowit", "Arrange", "arrangeit", Run, "", ArrangeWindows},
  };
  return kCommands;
}

bool IsAvailable(const App& app, const MenuCommand& command) {
  switch (command.kind) {
    case CommandKind::Head:
      return true;
    case CommandKind::Show:
    case CommandKind::Edit:
    case CommandKind::EditAndOn:
      return app.FindWindow(command.target) != nullptr;
    case CommandKind::Press:
    case CommandKind::SwitchOn: {
      const Control* control = FindControl(app, command.target);
      return control != nullptr && control->enabled();
    }
    case CommandKind::Run:
    case CommandKind::Change:
    case CommandKind::Mark:
      return command.run != nullptr;
  }
  return false;
}

void RunMenuCommand(App& app, const MenuCommand& command, const Control& pressed) {
  switch (command.kind) {
    case CommandKind::Head:
      return;
    case CommandKind::Edit:
    case CommandKind::EditAndOn:
      app.view->form36.DisarmModes();
      [[fallthrough]];
    case CommandKind::Show:
      app.FindWindow(command.target)->Show();
      if (command.kind == CommandKind::EditAndOn) SwitchOn(app, command.also);
      if (command.kind != CommandKind::Show) RefreshViews(app);  // what showed the mode goes
      return;
    case CommandKind::Press:
      FindControl(app, command.target)->Press({});
      return;
    case CommandKind::SwitchOn:
      SwitchOn(app, command.target);
      return;
    case CommandKind::Run:
      command.run(app);
      return;
    case CommandKind::Change:
    case CommandKind::Mark:
      ChangeParts(app, command, pressed);
      return;
  }
}

void BindCommandRow(App& app, const std::vector<std::unique_ptr<PushButton>>& row) {
  for (std::size_t i = 0; i < row.size(); ++i) {
    const MenuCommand* command = CommandOf(CommandButtons()[i]);
    if (command == nullptr) continue;
    PushButton& button = *row[i];
    button.SetEnabled(IsAvailable(app, *command));
    button.SetToolTip(std::string(command->toolTip.empty() ? command->caption : command->toolTip));
    button.onClick = [&app, &button, command](const Click&) { RunMenuCommand(app, *command, button); };
  }
}

}  // namespace pelorium
