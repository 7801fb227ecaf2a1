// The menus of the image maker: files, effects, filters, copies, the clipboard.
#include <string>
#include <utility>

#include "controls/lists.h"
#include "imaging/filter_items.h"
#include "windows/imaging/texture_image_maker.h"
#include "windows/imaging/view_image.h"
#include "windows/shell/app_shell.h"
#include "windows/shell/file_names.h"
#include "windows/shell/readers.h"

namespace pelorium {

namespace {

constexpr const char* kNoAction = "there is no third picture: nothing happens";
constexpr Colour kColourMask = 0xFFFFFF;

// Of the effects that are named for a colour, the swatch of the sample shows the number behind its own.
bool ShowsNext(std::string_view item) { return item == "ci" || item == "yel" || item == "blk"; }

}  // namespace

MenuItem* Texture::AddHead(const char* name, const char* caption) {
  menu_.push_back(std::make_unique<MenuItem>(*this, name, caption));
  return menu_.back().get();
}

MenuItem& Texture::AddItem(MenuItem* head, const char* name, const char* caption, const char* toolTip,
                           std::function<void()> run, const char* needs) {
  menu_.push_back(std::make_unique<MenuItem>(*this, name, caption, head));
  MenuItem& item = *menu_.back();
  item.SetToolTip(toolTip);
  if (run) item.onClick = [run = std::move(run)](const Click&) { run(); };
  if (*needs != '\0') needs_.emplace_back(&item, needs);
  return item;
}

void Texture::MakeMenus() {
  using enum Image;
  MenuItem* files = AddHead("filesmenu", "Files |");
  AddItem(
      files, "openme1st", "Open into Foreground image", "the filters then work on it",
      [this] { PressInFileWindow("Command33"); }, "Form15");
  AddItem(
      files, "saveme1st", "Save Foreground image to bmp", "as it is now",
      [this] { PressInFileWindow("Command19"); }, "Form15");
  AddItem(
      files, "openme2nd", "Open into Background image", "effects stamp on it",
      [this] { PressInFileWindow("Command2"); }, "Form15")
      .hasLineAbove = true;
  AddItem(
      files, "saveme2nd", "Save Background image to bmp", "as it is now",
      [this] { PressInFileWindow("Command1"); }, "Form15");
  AddItem(
      files, "savit", "Open/Save Bmp  ", "shows the files; filters work on the Foreground as it is now",
      [this] { ShowWindow("Form15"), LoadSource(); }, "Form15")
      .hasLineAbove = true;
  MakeEffectMenu();
  MakeFilterMenu();

  MenuItem* copies = AddHead("copymenu", "Copy Options |");
  AddItem(copies, "transferto2", "copy Foreground to Background", "with its size",
          [this] { CopyImage(Foreground, Background); });
  AddItem(copies, "transfertoone", "copy Background to Foreground",
          "with its size; filters follow at fix image", [this] { CopyImage(Background, Foreground); });
  AddItem(copies, "transfer2to3", "copy 2 to 3", kNoAction, {}).hasLineAbove = true;
  AddItem(copies, "transfer3to2", "copy 3 to 2", kNoAction, {});
  AddItem(copies, "transferoneto3", "copy 1 to 3", kNoAction, {});

  MenuItem* clipboard = AddHead("clipmenu", "  Clipboard Options |");
  AddItem(clipboard, "savecliper", "save to clipbd (Foreground)", "the whole picture",
          [this] { PutOnClipboard(Foreground); });
  AddItem(clipboard, "savetoclipboard2nd", "Save to clipboard (Background)", "the whole picture",
          [this] { PutOnClipboard(Background); });
  MenuItem* const taking[] = {
      &AddItem(clipboard, "getclkip", "get from clipboard (Foreground)",
               "the Foreground becomes the picture of the clipboard; filters follow at fix image",
               [this] { GetFromClipboard(Foreground); }),
      &AddItem(clipboard, "getclip2nd", "get from clipboard (Background)",
               "the Background becomes the picture of the clipboard",
               [this] { GetFromClipboard(Background); })};
  for (MenuItem* item : taking) item->lacks = [this] { return LackOfPicture(app_); };
  taking[0]->hasLineAbove = true;
  AddItem(clipboard, "wallpaperme", "Set to Wallpaper",
          "saves the Foreground as Plasma.bmp and puts it behind the screen", [this] { SetAsWallpaper(); })
      .hasLineAbove = true;

  AddItem(
      nullptr, "imagesize", "Gradiant maker  |", "gradients for the Background and the palette",
      [this] { ShowWindow("Form45"); }, "Form45");
  AddItem(nullptr, "set1", " Set Basecolor-Foreground  |", "clears the Foreground to the chosen color",
          [this] { SetBaseColour(Foreground); });
  AddItem(nullptr, "set2", " Set Basecolor-Background  |", "clears the Background to the chosen color",
          [this] { SetBaseColour(Background); });
  AddItem(
      nullptr, "helpmenow", "Help |", "shows the help", [this] { ShowWindow("helpme"); }, "helpme");
  AddItem(nullptr, "baker", "Go to Model maker  |", "hides the image maker", [this] { Hide(); });
  MenuItem* black = AddHead("effectsmenu2", "Effects");
  for (const ImageEffect& effect : ImageEffects()) {
    if (effect.item == std::string_view("blk")) {
      AddItem(black, effect.item, effect.caption, "the Foreground's levels of gray onto the Background",
              [this, &effect] { RunEffect(effect); });
    }
  }
}

void Texture::MakeEffectMenu() {
  MenuItem* effects = AddHead("effectsmenu", " Effects  |");
  for (const ImageEffect& effect : ImageEffects()) {
    if (effect.item == std::string_view("blk")) continue;
    AddItem(effects, effect.item, effect.caption, "walks the Foreground and stamps the Background",
            [this, &effect] { RunEffect(effect); });
  }
  AddItem(effects, "plasmait", "plasma", "fills the Foreground with a cloud", [this] {
    FillWithPlasma();
  }).hasLineAbove = true;
  AddItem(
      effects, "plasmathreeme", "PlasmaCreator", "clouds on the picture of the view",
      [this] { ShowWindow("Plasmathree"); }, "Plasmathree");
}

void Texture::MakeFilterMenu() {
  MenuItem* filters = AddHead("filtersmenu", "  Filters (Foreground only)  |");
  for (const FilterItem& item : FilterItems()) {
    AddItem(filters, item.item, item.caption,
            item.ending == FilterEnding::Foreground
                ? "filters the Foreground as it was last drawn on or fixed"
                : "filters the Foreground as it was last drawn on or fixed, and shows that on the Background",
            [this, &item] { RunFilter(item); });
  }
}

void Texture::ShowWindow(const char* name) {
  if (Window* window = app_.FindWindow(name)) window->Show();
}

void Texture::PressInFileWindow(const char* command) {
  Window* files = app_.FindWindow("Form15");
  if (files == nullptr) return;
  if (auto* folders = dynamic_cast<DirList*>(files->Find("Dir1"))) folders->SetFolder(app_.applicationPath);
  if (auto* names = dynamic_cast<FileList*>(files->Find("File1"))) names->SetFolder(app_.applicationPath);
  if (Control* button = files->Find(command)) button->Press({});
}

void Texture::RunEffect(const ImageEffect& effect) {
  const EffectSettings settings = Settings().effect;
  ShowImage(Image::Background);
  EffectRun run{settings, Picture1.picture(), Picture5.picture(), levelDivisor_, app_.random};
  run.onStart = [this](int max) {
    ProgressBar1.SetMax(max);
    ProgressBar1.SetValue(0);
  };
  run.onColumn = [this](int column) { ProgressBar1.SetValue(column); };
  Trapped(app_.faults, "texture." + std::string(effect.item), [&] { effect.run(run); });
  if (run.lastSample) ShowColour(*run.lastSample);
  if (run.lastSample && ShowsNext(effect.item)) Picture3.Fill((*run.lastSample + 1) & kColourMask);
  Told(Image::Foreground);
  Told(Image::Background);
}

void Texture::RunFilter(const FilterItem& item) {
  FilterSettings settings;
  settings.range = Settings().effect.range;
  settings.chosen = ChosenColour();
  if (item.question == FilterQuestion::Kernel && !(askKernel && askKernel(process_))) return;
  if (item.question == FilterQuestion::Noise) {
    const std::optional<NoiseSettings> noise = askNoise ? askNoise() : std::nullopt;
    if (!noise) return;
    settings.noise = *noise;
  }
  item.run(process_, {Source(), working_, app_.random}, settings);
  Render(item.ending == FilterEnding::Foreground ? Image::Foreground : Image::Background);
}

void Texture::CopyImage(Image from, Image to) { Replace(to, BoxOf(from).picture()); }

void Texture::PutOnClipboard(Image image) { app_.platform.SetClipboardPicture(BoxOf(image).picture()); }

void Texture::GetFromClipboard(Image image) {
  if (const std::optional<Picture> picture = app_.platform.ClipboardPicture()) Replace(image, *picture);
}

void Texture::SetBaseColour(Image image) {
  Picture& picture = BoxOf(image).picture();
  picture.backColour = Picture2.picture().backColour;
  picture.Clear();
  Told(image);
}

void Texture::SetAsWallpaper() { pelorium::SetAsWallpaper(app_, "texture.wallpaperme", Picture1.picture()); }

}  // namespace pelorium
