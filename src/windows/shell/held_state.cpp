// Taking steps and putting them back.
#include "windows/shell/held_state.h"

#include <algorithm>
#include <utility>

#include "controls/picture_box.h"
#include "controls/scroll_bar.h"
#include "controls/text_box.h"
#include "imaging/dib_section.h"

namespace pelorium {

std::size_t Step::Bytes() const {
  std::size_t bytes = sizeof *this + name.size() + BytesOf(model) + bars.size() * sizeof(Bar);
  for (const Text& text : texts) bytes += sizeof text + text.text.size();
  for (const Image& image : images) bytes += sizeof image + image.pixels.Bytes();
  return bytes;
}

void HeldState::Hold(TextBox& text) { texts_.push_back(&text); }

void HeldState::Hold(cDIBSection& surface) {
  images_.push_back({KeptImage(StoreOf(surface)), nullptr, {}, {}, {}});
}

void HeldState::Hold(PictureBox& picture, std::function<int()> extra, std::function<void(int)> showExtra) {
  images_.push_back({KeptImage(StoreOf(const_cast<Picture&>(picture.measures()))),
                     &picture,
                     std::move(extra),
                     std::move(showExtra),
                     {}});
}

void HeldState::Carry(ScrollBar& bar, CarriedLimit limit) { bars_.push_back({&bar, limit}); }

PictureLook HeldState::LookOf(const HeldImage& image) {
  if (image.box == nullptr) return {};
  const Picture& picture = image.box->measures();
  return {picture.ScaleWidth(), picture.ScaleHeight(), picture.backColour, image.box->visible(),
          image.extra ? image.extra() : 0};
}

// A picture that is drawn when it is looked at is left alone until then.
bool HeldState::IsDrawn(const HeldImage& image) { return image.box == nullptr || !image.box->isStale(); }

void HeldState::Begin() {
  model_.BeginChanges();
  for (HeldImage& image : images_) {
    if (image.box != nullptr) image.box->DrawStale();
    image.pixels.Begin();
    image.before = LookOf(image);
  }
  BeginAllButModel();
}

void HeldState::BeginAllButModel() {
  tessCountBefore_ = tessCount_;
  textsBefore_.resize(texts_.size());
  for (std::size_t i = 0; i < texts_.size(); ++i) textsBefore_[i] = texts_[i]->text();
  barsBefore_.resize(bars_.size());
  for (std::size_t i = 0; i < bars_.size(); ++i)
    barsBefore_[i] = {i, bars_[i].bar->Shown(), bars_[i].bar->max()};
}

bool HeldState::HaveTextsChanged() const {
  for (std::size_t i = 0; i < texts_.size(); ++i) {
    if (texts_[i]->text() != textsBefore_[i]) return true;
  }
  return tessCount_ != tessCountBefore_;
}

bool HeldState::HaveImagesChanged() {
  for (HeldImage& image : images_) {
    if (LookOf(image) != image.before || (IsDrawn(image) && image.pixels.IsChanged())) return true;
  }
  return false;
}

ModelChange HeldState::Reach(ModelChange known) {
  const ModelChange reach = std::max(known, model_.Changes());
  if (reach < ModelChange::Elsewhere && (HaveTextsChanged() || HaveImagesChanged()))
    return ModelChange::Elsewhere;
  return reach;
}

Step HeldState::Take() {
  Step step;
  step.reach = model_.Changes();
  if (step.reach != ModelChange::None) step.model = model_.TakeChanges();
  if (model_.hasMarks()) model_.BeginChanges();
  for (std::size_t i = 0; i < texts_.size(); ++i) {
    if (texts_[i]->text() != textsBefore_[i]) step.texts.push_back({i, textsBefore_[i]});
  }
  if (tessCount_ != tessCountBefore_) step.tessCount = tessCountBefore_;
  TakeImages(step);
  for (const Step::Bar& bar : barsBefore_) {
    const ScrollBar& now = *bars_[bar.number].bar;
    if (now.Shown() != bar.shown || now.max() != bar.max) step.bars.push_back(bar);
  }
  if (!step.texts.empty() || step.tessCount || !step.images.empty())
    step.reach = std::max(step.reach, ModelChange::Elsewhere);
  BeginAllButModel();
  return step;
}

void HeldState::TakeImages(Step& step) {
  for (std::size_t i = 0; i < images_.size(); ++i) {
    HeldImage& image = images_[i];
    Step::Image other{i, {}, {}};
    if (IsDrawn(image)) other.pixels = image.pixels.TakeChanges();
    if (const PictureLook now = LookOf(image); now != image.before)
      other.look = std::exchange(image.before, now);
    if (other.look || !other.pixels.isEmpty()) step.images.push_back(std::move(other));
  }
}

void HeldState::Swap(Step& step) {
  if (model_.hasMarks()) model_.BeginChanges();
  model_.Swap(step.model);
  for (Step::Text& other : step.texts) {
    std::string now = texts_[other.number]->text();
    texts_[other.number]->SetText(std::exchange(other.text, std::move(now)));
  }
  if (step.tessCount) std::swap(*step.tessCount, tessCount_);
  for (Step::Image& other : step.images) SwapImage(images_[other.number], other);
  BeginAllButModel();
}

void HeldState::SwapImage(HeldImage& image, Step::Image& other) {
  if (image.box != nullptr) image.box->DrawStale();
  const PictureLook now = LookOf(image);
  image.pixels.Swap(other.pixels);
  if (image.box == nullptr) return;
  const PictureLook wanted = other.look.value_or(now);
  Picture& picture = image.box->picture();
  picture.SetScale(wanted.scaleWidth, wanted.scaleHeight);
  picture.backColour = wanted.ground;
  if (image.box->visible() != wanted.isVisible) image.box->SetVisible(wanted.isVisible);
  if (image.showExtra) image.showExtra(wanted.extra);
  if (other.look) other.look = now;
  image.before = LookOf(image);
  image.box->NotifyChanged();
}

std::vector<Step::Bar> HeldState::ExchangeBars(Step& step) const {
  const std::vector<Step::Bar> wanted = step.bars;
  for (Step::Bar& bar : step.bars)
    bar = {bar.number, bars_[bar.number].bar->Shown(), bars_[bar.number].bar->max()};
  return wanted;
}

void HeldState::ShowBars(const std::vector<Step::Bar>& bars) {
  for (const Step::Bar& bar : bars) {
    const auto& [to, limit] = bars_[bar.number];
    if (limit == CarriedLimit::IsCarried) to->ShowMax(bar.max);
    to->Show(bar.shown);
  }
  BeginAllButModel();
}

}  // namespace pelorium
