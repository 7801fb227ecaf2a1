// The command set.
#include "windows/frame/command_table.h"

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
#include "windows/shell/app_shell.h"
#include "windows/shell/history.h"
#include "windows/shell/readers.h"
#include "windows/view/shared_parameters.h"

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

void UndoStep(App& app) { app.history->Undo(); }
void RedoStep(App& app) { app.history->Redo(); }

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

// An erased Part counts a point and a face.
std::string LackOfCopy(App& app) {
  const PartHeader& copied = app.model.Part(kBufferPart);
  return copied.maxpoints > 1 || copied.maxfaces > 1 ? "" : "nothing copied yet";
}

constexpr CommandAction Show(std::string_view window) { return {CommandKind::Show, window}; }
constexpr CommandAction Edit(std::string_view window) { return {CommandKind::Edit, window}; }
constexpr CommandAction EditAndOn(std::string_view window, std::string_view option) {
  return {CommandKind::EditAndOn, window, option};
}
constexpr CommandAction Press(std::string_view button) { return {CommandKind::Press, button}; }
constexpr CommandAction SwitchOn(std::string_view option) { return {CommandKind::SwitchOn, option}; }
constexpr CommandAction Run(void (*routine)(App&)) { return {CommandKind::Run, routine}; }
constexpr CommandAction Change(void (*routine)(App&)) { return {CommandKind::Change, routine}; }
constexpr CommandAction Mark(void (*routine)(App&)) { return {CommandKind::Mark, routine}; }

constexpr bool kLineAbove = true;

}  // namespace

const std::vector<MenuCommand>& MenuCommands() {
  static const std::vector<MenuCommand> kCommands = {
      {"", "Files |", "fileit", {}, "", "F10"},
      {"fileit", "Open project", "openproj", Press("Form31.Command15"),
       "both Parts, all profiles and the materials become those of a .prj file", "Ctrl+O"},
      {"fileit", "Save project", "saveproj", Press("Form31.Command14"),
       "both Parts, all profiles and the materials into a .prj file", "Ctrl+S"},
      {"fileit", "Open texture uv's file", "opentex", Press("Form31.Command11"), "", "", kLineAbove},
      {"fileit", "Save texture uv's file", "savetex", Press("Form31.Command9")},
      {"fileit", "Open Profiles", "openprof", Press("frmsaveprof.Command2"), "", "", kLineAbove},
      {"fileit", "Save Profiles", "saveprof", Press("frmsaveprof.Command1")},
      {"fileit", "Export Profile Info -- parametric ", "exportprofpara", Press("frmsaveprof.Command3")},
      {"fileit", "Export Profile Info", "exportprofinfome", Press("frmsaveprof.Command4")},
      {"fileit", "Save/Open project ", "openinfo", Show("Form31"),
       "project files, mappings, and a report on a Part", "", kLineAbove},
      {"fileit", "Import/Export obj", "saveobj", Show("Form14"),
       ".obj files of other programs, and their texture coordinates"},
      {"fileit", "Import/Export dxf", "dxfsave", Show("Form12"), ".dxf files of other programs"},
      {"fileit", "Open Image", "openimage", Press("Form47.Command3"), "", "", kLineAbove},
      {"fileit", "Save Image to bmp", "saveimage", Press("Form47.Command4")},
      {"fileit", "Save/Open image", "openimages", Show("Form47"),
       "the image behind the model from and to picture files"},
      {"fileit", "Import/Export uv's file", "importuvsme", Show("uvimportexport"),
       "texture coordinates from and to .uvs and .obj files", "", kLineAbove},
      {"fileit", "Export Obj Info (Currently Chosen Part#)", "exportobjinfo2", Press("Form31.Command13"),
       "a report on the points and faces of the current Part"},
      {"fileit", "Export Obj Info (All part#'s)", "exportinfo", Press("Form31.Command12"),
       "a report on the points and faces of both Parts"},
      {"fileit", "Import Ultimate Unwrap TUV", "convertit", Show("convert"),
       "a flat pattern from a .tuv file becomes the current Part", "", kLineAbove},
      {"fileit", "Exit", "exiter", Run(Exit), "ends the program; nothing is asked and nothing is saved",
       "Ctrl+Q", kLineAbove},

      {"", "Shortcuts |", "shortcutit"},
      {"shortcutit", "Q save", "memsave", Run(QuickSave),
       "keeps Parts, profiles and materials in one file, without a question"},
      {"shortcutit", "Q get", "restoreit", Run(QuickGet), "brings back what Q save kept"},
      {"shortcutit", "Draw tesselated", "tessie", SwitchOn("Form51.Option3"),
       "clicks on the view set the points of a mesh", "", kLineAbove},
      {"shortcutit", "Profile view", "profileview", SwitchOn("Form51.Option1"),
       "the current profile, to draw and edit it"},
      {"shortcutit", "Top view", "topview", SwitchOn("Form51.Option5"),
       "the Parts from above: X across, Y up"},
      {"shortcutit", "Front view", "frontview", SwitchOn("Form51.Option2"),
       "the Parts from the front: X across, Z up"},
      {"shortcutit", "Side view", "sideview", SwitchOn("Form51.Option6"),
       "the Parts from the side: Y across, Z up"},
      {"shortcutit", "3dview", "dddviewit", SwitchOn("Form51.Option4"), "the Parts at a slant"},
      {"shortcutit", "Shaded view", "rev1", Press("Form51.Command2")},
      {"shortcutit", "Tri View", "triviewitme", SwitchOn("Form51.Option16"), "top, front and side at once"},
      {"shortcutit", "Revolve", "revolveit1", Run(RevolvePlainly),
       "revolves the current profile without petals, spiral and their like", "", kLineAbove},
      {"shortcutit", "Revolve-petals", "revolve2", Press("revolveprof.Command15"),
       "revolves the current profile with all that is set in Revolve Profile"},
      {"shortcutit", "Revolve prof--col circle", "revolve3", Run(RevolveAndJoin),
       "revolves plainly, then puts the last side on the first"},
      {"shortcutit", "Join Ends", "joinit", Press("revolveprof.Command18")},

      {"", "Create/Edit Profiles |", "editprofme"},
      {"editprofme", "Draw/Edit Profile", "formulait", Edit("Formulas"),
       "points of profiles: draw, swap, mirror, space, turn, scale"},
      {"editprofme", "More Edit Options", "editprofpri", Edit("Formulas3frm"),
       "several profiles at once, and Parts made of them"},
      {"editprofme", "Profile formulas", "formulas2me", Edit("Formulas2frm"),
       "circles, sines and other curves as profiles"},

      {"", "Create Geometry |", "creatit"},
      {"creatit", "Revolve Profile", "rev", Edit("revolveprof"),
       "turns the current profile about an axis into a Part"},
      {"creatit", "Extrude Profile", "extrudeme", Edit("Form55"),
       "stacks copies of the current profile into a Part"},
      {"creatit", "Create Mesh", "triangleobj", EditAndOn("specialeffects6", "Form51.Option3"),
       "makes triangles between points that you click, or between the points of profiles"},
      {"creatit", "Create/Edit Materials", "mterials", Edit("material"),
       "colors and maps of the groups of faces", "", kLineAbove},
      {"creatit", "Profile import-Currently chosen", "importprofiles", Run(ImportCurrentProfile),
       "the points of the current profile go behind those of the Part", "", kLineAbove},
      {"creatit", "Profile Import (all)", "profimportmeall", Run(ImportAllProfiles),
       "the points of all profiles go behind those of the Part"},

      {"", "Edit Geometry |", "editit"},
      {"editit", "Edit ", "special5", Edit("specialeffects5"),
       "chooses points by faces, groups, layers or distance, and moves, turns and scales them"},
      {"editit", "Precise Edit", "editgeo", Edit("Form5"),
       "moves, turns, scales and flips the chosen points by numbers"},
      {"editit", "Special effects", "special1", Edit("specialeffects1"),
       "effects on the chosen points: bulge, flatten, conform, distort, copies"},
      {"editit", "Center ", "centerme", Change(CenterPart),
       "moves the Part so that its point 1 lies on the origin of Precise Edit", "", kLineAbove},
      {"editit", "All points on", "ptson", Mark(SwitchAllPointsOn), "all points of the Part are chosen", "",
       kLineAbove},
      {"editit", "All pts off", "ptsoff", Mark(SwitchAllPointsOff), "no point of the Part is chosen"},
      {"editit", "Invert pts", "invertpts", Mark(InvertChosenPoints),
       "points from Points Start to Points End that are on go off, the others on"},
      {"editit", "Join faces/points", "joinitall", Run(JoinClosePoints),
       "points within 2 units of each other are moved onto one place: a small model collapses", "",
       kLineAbove},
      {"editit", "Delete turned off Faces/points", "eraseoff", Mark(DeleteTurnedOff),
       "faces that are off fall together on point 1, and all points within 2 units of each other are joined: "
       "a small model collapses. The counts stay"},
      {"editit", "Subdivide (tri)", "subdivideme", Mark(Subdivide),
       "splits each face that is on in three at its middle, each with points of its own; the others are "
       "dropped"},
      {"editit", "Combine all to Part#", "combineallme", Change(CombineAll),
       "both Parts become the current one, which is centered; the other one stays", "", kLineAbove},
      {"editit", "Combine all to Part#--Erase ", "combineit2", Change(CombineAllAndErase),
       "both Parts become the current one, which is centered; the other one is erased"},

      {"", "Edit Faces |", "editfaces2"},
      {"editfaces2", "Erase Faces", "erasefacesme", Change(EraseAllFaces),
       "empties all faces of the Part; its points and counts stay"},
      {"editfaces2", "All Faces on", "faceon", Mark(SwitchAllFacesOn), "all faces of the Part are on", "",
       kLineAbove},
      {"editfaces2", "All Faces off", "facesoff", Mark(SwitchAllFacesOff),
       "all faces of the Part are off: exports and rebuilding leave them out"},
      {"editfaces2", "Invert Faces", "invert", Mark(InvertFaceRange),
       "faces from Faces Start to Faces End that are on go off, the others on"},
      {"editfaces2", "Faces on (range)", "facesiton", Mark(SwitchFaceRangeOn),
       "the faces from Faces Start to Faces End are on"},
      {"editfaces2", "Faces off (range)", "faceitoff", Mark(SwitchFaceRangeOff),
       "the faces from Faces Start to Faces End are off"},
      {"editfaces2", "Combine all  to Part# (erase alll)", "collapseit", Change(CombineAllAndErase),
       "both Parts become the current one, which is centered; the other one is erased", "", kLineAbove},
      {"editfaces2", "Edit Face/Vertex and Info", "editfaces", Edit("editbyface"),
       "points and faces by their numbers", "", kLineAbove},
      {"editfaces2", "Freeface Edit/Create", "freefacesme", Edit("freeface"),
       "new faces by hand: caps, fans, strips"},
      {"editfaces2", "Disjoin faces", "disjoinit", Mark(Disjoin),
       "gives each face that is on three points of its own; the others are dropped", "", kLineAbove},
      {"editfaces2", "Flat Pattern/Pick Faces ", "unfoldme", Edit("unfold"),
       "lays a strip of faces flat, for a pattern on paper"},

      {"", "Erase |", "eraseme"},
      {"eraseme", "Erase", "eraseitya"},
      {"eraseitya", "Erase all but Current Part", "eraseor", Change(EraseOtherParts),
       "empties the other Part and what was copied"},
      {"eraseitya", "Erase Current Part", "erasecurrnt", Change(EraseCurrentPart),
       "empties the current Part"},
      {"eraseitya", "Erase all ", "erase", Change(EraseAll), "empties both Parts and what was copied"},

      {"", "Image  |", "imageops"},
      {"imageops", "Clear image", "clearimage", Run(ClearImage), "takes the image behind the model away"},
      {"imageops", "Send to clipboard model wireframe image (foreground)", "senittoboard",
       Run(SendForeground), "the picture of the view", "", kLineAbove},
      {"imageops", "Send to clipboard painted image  (background image)", "senditclip", Run(SendBackground),
       "the image behind the model"},
      {"imageops", "Get from Clipboard (to background image)", "getitclip", Run(GetBackground),
       "lays the picture of the clipboard behind the model", "", !kLineAbove, LackOfPicture},
      {"imageops", "Draw Greylevels (background image)", "editgrays", Show("Specialeffects3"),
       "paints levels of gray behind the model, for heights", "", kLineAbove},
      {"imageops", "Graylevel Plasma (background image)", "plasmait", Show("Plasma"),
       "a cloud of grays behind the model"},
      {"imageops", "Perlin Noise (background)", "perlinit", Show("frmPerlinNoise"), "noise behind the model"},
      {"imageops", "Goto Imagemaker", "textureit", Show("texture"), "paints, filters and makes images", "",
       kLineAbove},

      {"", "  View/Edit Options    |", "viewitere"},
      {"viewitere", "Total Sqr Units estimate for Part#", "estarea", Run(ShowEstimatedArea),
       "a message with the area of the current Part"},
      {"viewitere", "Obj view window", "viewerwin", Show("Form36"), "the model, and the mouse on it", "",
       kLineAbove},
      {"viewitere", "View options", "viewit", Show("Form51"), "Part, profile, view and what is shown"},

      {"", "Copy |", "copypart", Mark(CopyToBuffer), "copies the current Part, without its mapping"},
      {"", "Paste |", "pastepart", Change(PasteBuffer), "what was copied replaces the current Part", "",
       !kLineAbove, LackOfCopy},
      {"", "Paste Into |", "pasteintome", Change(PasteBufferInto),
       "what was copied is added to the current Part", "", !kLineAbove, LackOfCopy},
      {"", "Parts |", "getparts"},
      {"getparts", "Preset Parts", "builtins", Show("Dialog"), "Parts that come with the program"},
      {"getparts", ".obj Parts", "shapesit", Show("shapes"), "a library of .obj files"},
      {"getparts", ".txt Parts", "txtparts", Show("shapes2"), "a library of .txt files"},
      {"", "Help/ Notes |", "helpnow", Show("helpme"),
       "what each window does, with an example; and your own notes", "F1"},
      {"", "Help/Web |", "webitspiderman", Run(OpenWebSite), "the program's page in the browser"},
      {"", "About", "aboutit", Show("frmAbout"), "version and system"},

      {"", "Window", "windowit", {}, "", "Ctrl+"},
      {"windowit", "Undo", "undoit", Run(UndoStep),
       "takes back what was done last to the model, the origin or a picture", "Ctrl+Z"},
      {"windowit", "Redo", "redoit", Run(RedoStep), "does again what was undone last", "Ctrl+Shift+Z"},
      {"windowit", "Close panels", "closepanels", Run(ClosePanels),
       "closes all tool windows; the pages and the options stay", "", kLineAbove},
      {"windowit", "Arrange", "arrangeit", Run(ArrangeWindows), "brings all panels back into their column"},
  };
  return kCommands;
}

}  // namespace pelorium
