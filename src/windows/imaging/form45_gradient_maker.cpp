// "Gradiant maker".
#include "windows/imaging/form45_gradient_maker.h"

#include "windows/imaging/imaging_windows.h"
#include "windows/imaging/texture_image_maker.h"
#include "windows/shell/app_shell.h"

namespace pelorium {

Form45::Form45(App& app) : ToolWindow(app, "Form45", "Gradiant maker") {
  for (ScrollBar* bar : {&HScroll1, &HScroll2, &HScroll3, &HScroll4, &HScroll5, &HScroll6}) {
    bar->onChange = [this] { ShowSwatches(); };
  }
  Command1.onClick = [this](const Click&) {
    FillAcross(Picture1.picture(), Chosen());
    Picture1.NotifyChanged();
  };
  Command2.onClick = [this](const Click&) { FillBackground(FillDown); };
  Command3.onClick = [this](const Click&) { FillBackground(FillAcross); };
  Command4.onClick = [this](const Click&) {
    PictureBox& palette = app_.imaging->texture.Picture11;
    FillAcross(palette.picture(), Chosen());
    palette.NotifyChanged();
  };
  ShowSwatches();
  SetLayout(Column({
      Frame("Blend Start color", {BarRow(HScroll1), BarRow(HScroll2), BarRow(HScroll3), Single(Picture2)}),
      Frame("Blend End color", {BarRow(HScroll4), BarRow(HScroll5), BarRow(HScroll6), Single(Picture3)}),
      Single(Picture1),
      Flow({&Command1, &Command2, &Command3, &Command4}),
  }));
}

Gradient Form45::Chosen() const {
  return {Rgb(HScroll1.value(), HScroll2.value(), HScroll3.value()),
          Rgb(HScroll4.value(), HScroll5.value(), HScroll6.value())};
}

void Form45::ShowSwatches() {
  Picture2.Fill(Chosen().start);
  Picture3.Fill(Chosen().end);
}

// The lines are one wide whatever the point size, which both images have again afterwards.
void Form45::FillBackground(void (*fill)(Picture&, const Gradient&)) {
  Texture& maker = app_.imaging->texture;
  fill(maker.Picture5.picture(), Chosen());
  for (PictureBox* box : {&maker.Picture1, &maker.Picture5})
    box->picture().drawWidth = maker.HScroll5.value();
  maker.ShowImage(Texture::Image::Background);
  maker.Picture5.NotifyChanged();
}

}  // namespace pelorium
