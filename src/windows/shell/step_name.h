// How a person would call what an event did: "Extrude", by the control's caption.
#pragma once

#include <string>

namespace pelorium {

class Control;

// The bar beside a box, or the control itself: a person takes both for one.
const Control& OneOfPair(const Control& control);

// The caption without marks for the keyboard and dividers; of a box or a bar its label; else the window's.
std::string StepName(const Control& control);

}  // namespace pelorium
