// Making an image behind the model.
#pragma once

#include <functional>

namespace pelorium {

class App;
class Picture;

// Runs `paint` on the view's image with the view hidden; then the image lies behind the model and the view
// shows again, also when a fault ended the run.
void MakeViewImage(App& app, const std::function<void(Picture& image)>& paint);

// Saves the picture as "Plasma.bmp" and puts it behind everything on the machine's screen; a message says so
// when that fails. Faults are noted under the command's name.
void SetAsWallpaper(App& app, const char* command, const Picture& picture);

}  // namespace pelorium
