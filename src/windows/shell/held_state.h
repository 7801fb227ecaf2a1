// What steps of undo and redo hold: the tables, some texts and numbers, some pictures and surfaces, and the
// values of bars that go with them. The rooms say which when they are built.
#pragma once

#include <deque>
#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "base/colour.h"
#include "core/model_store.h"
#include "imaging/kept_image.h"

namespace pelorium {

class PictureBox;
class ScrollBar;
class TextBox;
class cDIBSection;

// Of a picture, beside its pixels. `extra` is what its window adds.
struct PictureLook {
  double scaleWidth = 0, scaleHeight = 0;
  Colour ground = 0;
  bool isVisible = false;
  int extra = 0;
  bool operator==(const PictureLook&) const = default;
};

// One side of what an event changed; the program holds the other one. They change sides with each undo and
// each redo. Numbers of things count in the order in which they were given to HeldState.
struct Step {
  struct Text {
    std::size_t number;
    std::string text;
  };
  struct Image {
    std::size_t number;
    ImagePatch pixels;
    std::optional<PictureLook> look;
  };
  struct Bar {
    std::size_t number;
    double shown;
    int max;
  };

  std::string name;  // "Extrude"
  ModelChange reach = ModelChange::None;
  ModelPatch model;
  std::vector<Text> texts;
  std::optional<int> tessCount;
  std::vector<Image> images;
  std::vector<Bar> bars;
  std::uint64_t modelState = 0;  // which model the tables are on the step's side

  std::size_t Bytes() const;
};

class HeldState {
 public:
  HeldState(ModelStore& model, int& tessCount) : model_(model), tessCount_(tessCount) {}

  void Hold(TextBox& text);
  void Hold(cDIBSection& surface);
  // `extra` and `showExtra` tell and restore what the window adds; after other pixels, showExtra runs in any
  // case.
  void Hold(PictureBox& picture, std::function<int()> extra = {}, std::function<void(int)> showExtra = {});
  // A bar whose value goes back with a step that changed it; its upper limit, too, unless that follows from
  // counts. Its handler does not run.
  enum class CarriedLimit { Follows, IsCarried };
  void Carry(ScrollBar& bar, CarriedLimit limit = CarriedLimit::Follows);

  // Changes count from now on.
  void Begin();
  // How far they go by now, or `known` if that is further. Cheap where nothing was touched, and where the
  // first look finds something.
  ModelChange Reach(ModelChange known);
  // What they were; they count anew.
  Step Take();
  // Tables, texts and pictures change sides with the step.
  void Swap(Step& step);
  // The bars' values, which are put back by ShowBars when their limits stand.
  std::vector<Step::Bar> ExchangeBars(Step& step) const;
  void ShowBars(const std::vector<Step::Bar>& bars);

 private:
  struct HeldImage {
    KeptImage pixels;
    PictureBox* box = nullptr;  // none for a surface
    std::function<int()> extra;
    std::function<void(int)> showExtra;
    PictureLook before;
  };

  static PictureLook LookOf(const HeldImage& image);
  static bool IsDrawn(const HeldImage& image);
  bool HaveTextsChanged() const;
  bool HaveImagesChanged();
  void BeginAllButModel();
  void TakeImages(Step& step);
  void SwapImage(HeldImage& image, Step::Image& other);

  ModelStore& model_;
  int& tessCount_;
  int tessCountBefore_ = 0;
  std::vector<TextBox*> texts_;
  std::vector<std::string> textsBefore_;
  std::vector<HeldImage> images_;
  struct CarriedBar {
    ScrollBar* bar;
    CarriedLimit limit;
  };
  std::vector<CarriedBar> bars_;
  std::vector<Step::Bar> barsBefore_;
};

}  // namespace pelorium
