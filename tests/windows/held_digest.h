// A number over all that a step of undo holds, computed without the steps' own code.
#pragma once

#include <bit>
#include <cstdint>
#include <initializer_list>
#include <string>
#include <variant>

#include "core/record_fields.h"
#include "imaging/dib_section.h"
#include "windows/imaging/imaging_windows.h"
#include "windows/imaging/texture_image_maker.h"
#include "windows/shell/app_shell.h"
#include "windows/view/form36_view.h"
#include "windows/view/form5_precise_edit.h"
#include "windows/view/view_windows.h"

namespace pelorium {

struct Digests {
  std::uint64_t all = 0, withoutCorners = 0;
};

class Digester {
 public:
  std::uint64_t sum = 0xcbf29ce484222325;
  void Add(std::uint64_t word) { sum = (std::rotl(sum, 5) ^ word) * 0x9e3779b97f4a7c15; }
  void Add(double number) { Add(std::bit_cast<std::uint64_t>(number)); }
  void Add(int number) { Add(static_cast<std::uint64_t>(number)); }
  // A name of a file without its folder, which is another one in each program.
  void Add(const std::string& text) {
    for (std::size_t i = text.rfind('/') + 1; i < text.size(); ++i) Add(static_cast<int>(text[i]));
    Add(-1);
  }
  template <typename Rec>
  void AddFields(const Rec& record) {
    for (const auto& field : FieldsOf<Rec>())
      std::visit([&](auto member) { Add(record.*member); }, field.member);
  }
};

inline void AddTables(Digester& digest, Digester& corners, const ModelStore& model) {
  for (int part = 0; part < kParts; ++part) {
    digest.AddFields(model.Part(part));
    const auto& grid = model.Part(part).grid;
    digest.Add(grid ? grid->width * 100000 + grid->rows : -1);
    for (int i = 0; i <= kMaxPoints; ++i) {
      const PointRec& p = model.Points(part, i);
      for (const double number : {p.X, p.Y, p.Z, p.u, p.v}) digest.Add(number);
      digest.Add(p.onoff * 65536 + model.PointMark(part, i));
    }
    for (int i = 0; i <= kMaxFaces; ++i) {
      const FaceRec& f = model.Faces(part, i);
      for (const int number : {f.corner1pt, f.corner2pt, f.corner3pt}) digest.Add(number);
      for (const int number : {f.onoff, f.group, f.vt1, f.vt2, f.vt3, model.FaceMark(part, i)})
        digest.Add(number);
      for (const double n : {f.c1X, f.c1Y, f.c1Z, f.c2X, f.c2Y, f.c2Z, f.c3X, f.c3Y, f.c3Z}) corners.Add(n);
    }
  }
  for (int profile = 0; profile <= kMaxProfile; ++profile) {
    digest.AddFields(model.Profile(profile));
    for (int i = 0; i <= kMaxLayer; ++i) digest.AddFields(model.ProfilePts(i, profile));
  }
  for (int group = 0; group <= kMaxGroup; ++group) digest.AddFields(model.MaterialGroups(group));
}

inline void AddImages(Digester& digest, const App& app) {
  const Texture& maker = app.imaging->texture;
  for (const PictureBox* box : std::initializer_list<const PictureBox*>{
           &maker.Picture1, &maker.Picture5, &maker.Picture11, &app.view->form36.Picture2}) {
    const Picture& picture = box->measures();
    for (const int n : {picture.PixelWidth(), picture.PixelHeight(), box->visible() ? 1 : 0}) digest.Add(n);
    digest.Add(picture.ScaleWidth());
    digest.Add(picture.ScaleHeight());
    digest.Add(static_cast<std::uint64_t>(picture.backColour));
    for (const std::uint32_t pixel : picture.Pixels()) digest.Add(std::uint64_t{pixel});
  }
  digest.Add(app.view->form36.Picture1.measures().backdrop() ? 1 : 0);
  digest.Add(app.view->form36.ImageGrayAt(10, 10));
  const auto& [source, working] = maker.surfaces();
  for (const cDIBSection* surface : {&source, &working}) {
    digest.Add(surface->Width());
    for (int y = 0; y < surface->Height(); ++y) {
      const std::uint8_t* row = surface->Row(y);
      for (int i = 0; i < surface->BytesPerScanLine(); i += 4) {
        digest.Add(row[i] + row[i + 1] * 256 + row[i + 2] * 65536), digest.Add(row[i + 3]);
      }
    }
  }
}

inline Digests DigestOfHeld(const App& app) {
  Digester digest, corners;
  AddTables(digest, corners, app.model);
  const Form5& origin = app.view->form5;
  for (const TextBox* box : {&origin.Text5, &origin.Text9, &origin.Text3}) digest.Add(box->text());
  digest.Add(app.TessCount);
  AddImages(digest, app);
  Digests sums{0, digest.sum};
  digest.Add(corners.sum);
  sums.all = digest.sum;
  return sums;
}

}  // namespace pelorium
