// The profile file: all 37 profiles with their extrude settings as one text. The same lines are the profiles'
// block of the project file.
//
// 37 blocks: seven lines of settings of profile a, then point a of each of the 37 profiles in five lines; the
// points lie across the settings' order. 37 * (7 + 37 * 5) lines.
#pragma once

#include <string_view>

#include "base/item_reader.h"
#include "base/text_writer.h"
#include "core/model_store.h"

namespace pelorium {

// Positions are rounded to 2 decimals, all other fractions keep 15 digits.
void WriteProfiles(const ModelStore& model, TextWriter& out);

// Which items a reader takes.
enum class ProfileItems {
  All,            // what the writer wrote
  WithoutSecond,  // none of the second effector's: its profiles and its amounts
};

// Takes the items from where `in` stands. `count` is held in 0..36; a bad item, a whole number that does not
// fit its field and the end of the text raise a Fault and leave what was read up to it.
void ReadProfiles(ModelStore& model, ItemReader& in, ProfileItems items);

// Reads a file by itself, WithoutSecond. From a file that holds the second effector too, each item from the
// seventh line on lands three places further on, and what is then left of the text is not read: files for
// this reader are those that leave the second effector out. The project file keeps everything.
void ReadProfileFile(ModelStore& model, std::string_view text);

}  // namespace pelorium
