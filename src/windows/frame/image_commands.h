// The menu's commands on the view's picture and on its background image.
#pragma once

namespace pelorium {

class App;

// Takes the background image away from behind the model and blackens it.
void ClearImage(App& app);

// The picture of the model, and the background image, to the clipboard.
void SendForeground(App& app);
void SendBackground(App& app);

// The clipboard's picture becomes the background image, cut to its size, and lies behind the model. Without
// one nothing happens.
void GetBackground(App& app);

}  // namespace pelorium
