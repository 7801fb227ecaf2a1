// The rows of both tables, in the order of the menu.
#include "imaging/image_effects.h"

#include "imaging/block_effects.h"
#include "imaging/dot_effects.h"
#include "imaging/scaled_effects.h"
#include "imaging/transfer_effects.h"

namespace pelorium {

namespace {

constexpr ImageEffect kEffects[] = {
    {"size 1/2", "sizeithalf", HalfSize},
    {"errordiffuse", "errordiffuseit", ErrorDiffuse},
    {"size 2x", "sizeit", DoubleSize},
    {"gray 10 levels", "greyten", GrayTenLevels},
    {"colorize2", "addcolorit", Colorize2},
    {"solid (2nd)", "solidit", Solid},
    {"white noise", "whitenoise", WhiteNoise},
    {"threshold", "thresholdit", Threshold},
    {"magenta", "magentafast", MagentaFast},
    {"yellow", "yel", Yellow},
    {"cyan", "cyanfast", CyanFast},
    {"cyan (slow)", "ci", CyanSlow},
    {"poster", "posterit", Poster},
    {"poster2", "poster2", Poster2},
    {"halftone", "halftoneier", Halftone},
    {"transfer to Background (gray)", "transfergray", TransferGray},
    {"transfer to Background (color)", "transfercolor", TransferColour},
    {"transfer to Background (gray neg)", "transferneg", TransferGrayNegative},
    {"transfer to Background (color neg)", "transferto2ndcolr", TransferColourNegative},
    {"black", "blk", Black},  // alone in a menu of its own
};

constexpr ImageEffect kSpareEffects[] = {
    {"yellow, fast", "", YellowFast},     {"gray, fast", "", GrayFast},
    {"colour, fast", "", ColourFast},     {"blue", "", BlueLevels},
    {"green", "", GreenLevels},           {"red", "", RedLevels},
    {"magenta, slow", "", MagentaLevels}, {"gray negative", "", GrayNegative},
    {"colour levels", "", ColourLevels},
};

}  // namespace

std::span<const ImageEffect> ImageEffects() { return kEffects; }
std::span<const ImageEffect> SpareEffects() { return kSpareEffects; }

}  // namespace pelorium
