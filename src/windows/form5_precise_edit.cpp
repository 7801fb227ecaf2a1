// "Precise Edit".
#include "windows/form5_precise_edit.h"

#include "core/model_store.h"
#include "windows/app.h"
#include "windows/form51_view_options.h"
#include "windows/refresh_views.h"
#include "windows/shared_parameters.h"

namespace pelorium {

Form5::Form5(App& app) : Window(app.host, "Form5", "Precise Edit"), app_(app) {
  for (TextBox* box : {&Text5, &Text9, &Text3}) {
    box->onKeyUp = [this] { RefreshViews(app_); };
  }
  for (auto [bar, box] : {std::pair{&HScroll20, &Text38}, {&HScroll25, &Text39}}) {
    Pair(*bar, *box);
    bar->onChange = [this] { RefreshViews(app_); };
  }
  for (auto [bar, box] : {std::pair{&HScroll1, &Text1},
                          {&HScroll2, &Text2},
                          {&HScroll5, &Text6},
                          {&HScroll9, &Text4},
                          {&HScroll11, &Text8}}) {
    Pair(*bar, *box);
  }
  Mirror(HScroll10, Text41);  // the text is the amount: a typed fraction stands
  HScroll11.onChange = [this] { HScroll11_Change(); };
  SetLayout(Column({
      Frame("Origin", {Labelled("Origin Loc X", Text5), Labelled("Origin Loc Y", Text9),
                       Labelled("Origin Loc Z", Text3)}),
      Frame("Chosen points",
            {BarRow(HScroll20, {&Text38}), BarRow(HScroll25, {&Text39}), BarRow(HScroll9, {&Text4}),
             BarRow(HScroll1, {&Text1}), BarRow(HScroll2, {&Text2}), BarRow(HScroll5, {&Text6}),
             BarRow(HScroll11, {&Text8})}),
      Frame("Amounts", {BarRow(HScroll10, {&Text41}), Labelled("Rotate amt", Text19),
                        Labelled("Scale amnt -", Text10), Labelled("Scale amnt +", Text20)}),
      Row({Frame("Flip", {Flow({&Option3, &Option2, &Option1})}),
           Frame("Set equal", {Flow({&Option4, &Option5, &Option6})})}),
      Single(Check2),
      Single(Label1),
  }));
}

void Form5::Load() {
  for (ScrollBar* layers : {&HScroll1, &HScroll2, &HScroll5}) layers->SetMax(kMaxLayer);
  HScroll11.SetMax(kUserParts - 1);
  const int points = app_.model.Part(CurrentPart(app_)).maxpoints;
  HScroll25.SetMax(points);
  HScroll25.SetValue(points);
}

void Form5::HScroll11_Change() { app_.form51.HScroll4.SetValue(HScroll11.value()); }

}  // namespace pelorium
