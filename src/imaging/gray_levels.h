// Painting, blurring, inverting and spraying of gray levels on a picture that serves as heights.
#pragma once

#include <functional>

#include "base/random_series.h"
#include "core/model_store.h"
#include "graphics/picture.h"

namespace pelorium {

// All of them leave the pen and the draw width that they used on the picture. Samples lie on a grid from
// (1, 1) on, up to the width and the height, both included: what lies outside reads as white.

// Each sample's negative as a dot six wide. The samples are those of the picture before the call.
void InvertGrays(Picture& picture, int spacing);

// `amount` dots at random places of the view's image, 968 x 670; what falls outside the picture is lost.
void SprayGrays(Picture& picture, int gray, int dotSize, int amount, RandomSeries& random);

struct GrayBlur {
  int step = 1;         // distance of the neighbours
  int spacing = 4;      // from sample to sample
  int dotSize = 4;      // what is written back
  bool isFine = false;  // the eight neighbours at the step, else sixteen at -2, -1, 1, 2 times the step
};

// Row by row; each sample becomes the mean of itself and of its neighbours inside the picture, whole part,
// and later ones see what earlier ones wrote. `onRow` hears of each row of samples that is done.
void BlurGrays(Picture& picture, const GrayBlur& blur, const std::function<void(int)>& onRow = {});

struct GrayBrush {
  int size = 20;
  int gray = 128;
  int dotSize = 4;               // of the spray
  int randomPoints = 100;        // the spray has a tenth of them and one
  int step = 1;                  // of the neighbours that it blends with
  int randomX = 0, randomY = 0;  // each mark moves by up to so much
  int brightness = 100;          // percent
  int addGray = 0, addWidth = 0;
  int filterMin = 0, filterMax = 255;  // a mark is set where the gray under its centre lies within
};

struct GrayStroke {
  double x = 0, y = 0;
  bool blends = false;  // the gray is half way to the mean about the place
  bool sprays = false;  // dots about the place, not one disc
};

void PaintGrays(Picture& picture, const GrayBrush& brush, const GrayStroke& stroke, RandomSeries& random);

// The outline of a profile's points, seen from the top, from the place on, in lines of the brush.
void PaintProfileInGray(Picture& picture, const GrayBrush& brush, const GrayStroke& stroke,
                        const ModelStore& model, int profile);

// The grays 0..255 as columns from the left.
void PaintGrayRamp(Picture& picture);

}  // namespace pelorium
