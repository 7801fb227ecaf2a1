// The longer answers of the script language, a line each, line ends included.
#pragma once

#include <string>

#include "controls/control.h"
#include "platform/platform.h"

namespace pelorium {

class App;
class ModelStore;
class Window;

// A number in its shortest form, a text in double quotes.
std::string AnswerForm(const PropertyValue& value);

// The points or faces `first`..`last` of a Part; nothing when first > last. A Subscript fault, and no line,
// when the Part or a number lies outside its table.
std::string PointLines(const ModelStore& model, int part, int first, int last);
std::string FaceLines(const ModelStore& model, int part, int first, int last);
std::string CornerLines(const ModelStore& model, int part, int first, int last);

// All points of a profile, from 0.
std::string ProfileLines(const ModelStore& model, int profile);

std::string DialogLine(const FileDialogRequest& request);

std::string WindowLines(const App& app);
std::string ControlLines(const Window& window);

}  // namespace pelorium
