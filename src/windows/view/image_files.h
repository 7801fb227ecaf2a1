// Files of the image behind the model.
#pragma once

#include <filesystem>

namespace pelorium {

class App;

// The file becomes the image, cut to its size and black where it ends, and lies behind the model. A file that
// cannot be read changes nothing.
void OpenViewImage(App& app, const std::filesystem::path& name);
void SaveViewImage(App& app, const std::filesystem::path& name);

// The files "picture1.bmp" to "picture10.bmp" of the program's folder.
void LoadNumberedPicture(App& app, int number);
void StoreNumberedPicture(App& app, int number);

}  // namespace pelorium
