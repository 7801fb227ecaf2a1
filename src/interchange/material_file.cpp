// The material library.
#include "interchange/material_file.h"

#include <array>

namespace pelorium {

namespace {

using M = MaterialRec;

struct Amount {
  std::string_view before;
  double M::*value;
};

struct ColourLine {
  std::string_view before;
  double M::*red;
  double M::*green;
  double M::*blue;
};

struct MapLine {
  std::int16_t M::*isUsed;
  std::string_view before, after;
};

// The five amounts stand as comments: readers pass over them, and they travel along.
constexpr std::array<Amount, 5> kChannelAmounts = {{
    {"    #bump_amt ", &M::bump_amt},
    {"    #refl_amt ", &M::refl_amt},
    {"    #amb_amt ", &M::amb_amt},
    {"    #dif_amt ", &M::dif_amt},
    {"    #spec_amt ", &M::spec_amt},
}};

constexpr std::array<ColourLine, 4> kColours = {{
    {"    Ka  ", &M::KaR, &M::KaG, &M::KaB},
    {"    Kd  ", &M::KdR, &M::KdG, &M::KdB},
    {"    Ks  ", &M::KsR, &M::KsG, &M::KsB},
    {"    Tf  ", &M::TfR, &M::TfG, &M::TfB},
}};

constexpr std::array<MapLine, 4> kMaps = {{
    {&M::usebump, "    map_Bump mtl", "_bumpmap"},
    {&M::useamb, "    map_Ka mtl", "_ambiant"},
    {&M::usedif, "    map_Kd mtl", "_diffuse"},
    {&M::usespec, "    map_Ks mtl", "_specular"},
}};

void WriteMaterial(const M& material, int group, std::string_view imageExtension, TextWriter& out) {
  out.Text("newmtl material_").Integer(group).EndLine();
  out.Text("    Ns").General(material.Ns).EndLine();  // no blank between the word and its number
  out.Text("    d ").General(material.d).EndLine();
  out.Text("    illum ").Integer(material.illum).EndLine();
  for (const Amount& amount : kChannelAmounts)
    out.Text(amount.before).General(material.*amount.value).EndLine();
  for (const ColourLine& c : kColours) {
    out.Text(c.before).General(material.*c.red).Text("  ").General(material.*c.green).Text("  ");
    out.General(material.*c.blue).EndLine();
  }
  if (imageExtension.empty()) return;
  for (const MapLine& map : kMaps) {
    if (material.*map.isUsed != 1) continue;
    out.Text(map.before).Integer(group).Text(map.after).Text(imageExtension).EndLine();
  }
}

}  // namespace

void WriteMaterialFile(const ModelStore& model, std::string_view imageExtension, TextWriter& out) {
  for (int group = 0; group < kExportedGroups; ++group) {
    WriteMaterial(model.MaterialGroups(group), group, imageExtension, out);
  }
}

}  // namespace pelorium
