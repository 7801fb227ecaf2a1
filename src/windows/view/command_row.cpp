// The row of commands.
#include "windows/view/command_row.h"

#include <string>

namespace pelorium {

const std::vector<CommandButton>& CommandButtons() {
  static const std::vector<CommandButton> kButtons = {
      {"Command5", "Draw Tess", "tessie"},
      {"Command6", " Profile", "formulait"},
      {"Command7", "View", "viewit"},
      {"Command8", "More", "editprofpri"},
      {"Command9", " Formulas", "formulas2me"},
      {"Command10", "Revolve", "rev"},
      {"Command11", "Extrude", "extrudeme"},
      {"Command13", "Edit Geom", "special5"},
      {"Command14", "Precise  Edit", "editgeo"},
      {"Command15", "Special Effe", "special1"},
      {"Command17", "Materials", "mterials"},
      {"Command18", "Face Info", "editfaces"},
      {"Command19", "Grays", "editgrays"},
      {"Command20", "Plasma", "plasmait"},
      {"Command21", "Fre Face", "freefacesme"},
      {"Command1", "Center", "centerme"},
      {"Command4", "Q get", "restoreit"},
      {"Command3", "Q save", "memsave"},
      {"Command2", "Collapse into part#", ""},
      {"Command22", "Top View", "topview"},
      {"Command23", "Front View", "frontview"},
      {"Command24", "Side View", "sideview"},
      {"Command25", "3D View", "dddviewit"},
      {"Command33", "Shaded ", "rev1"},
  };
  return kButtons;
}

std::vector<std::unique_ptr<PushButton>> MakeCommandRow(Window& window) {
  std::vector<std::unique_ptr<PushButton>> row;
  for (const CommandButton& button : CommandButtons()) {
    row.push_back(
        std::make_unique<PushButton>(window, std::string(button.name), std::string(button.caption)));
    row.back()->SetEnabled(false);
  }
  return row;
}

}  // namespace pelorium
