// One table tells the order; writer and reader walk it.
#include "core/material_items.h"

#include <variant>

#include "core/record_lines.h"

namespace pelorium {

namespace {

// The three lines of the filter all hold its red: the last one read decides.
using M = MaterialRec;
const RecordLine<M> kMaterialItems =
    Fractions<M>({&M::Ns, &M::d}) + WholeNumbers<M>({&M::illum}) +
    Fractions<M>({&M::bump_amt, &M::refl_amt, &M::amb_amt, &M::dif_amt, &M::spec_amt, &M::KaR, &M::KaG,
                  &M::KaB, &M::KdR, &M::KdG, &M::KdB, &M::KsR, &M::KsG, &M::KsB, &M::TfR, &M::TfR, &M::TfR}) +
    WholeNumbers<M>({&M::usebump, &M::usedif, &M::useamb, &M::usespec});

}  // namespace

void WriteMaterialItems(const MaterialRec& material, TextWriter& out) {
  for (const RecordItem<M>& item : kMaterialItems) {
    if (const auto* number = std::get_if<double M::*>(&item.field)) {
      out.Print(material.**number).EndLine();
    } else {
      out.Print(material.*std::get<std::int16_t M::*>(item.field)).EndLine();
    }
  }
}

void ReadMaterialItems(MaterialRec& material, ItemReader& in) { ReadItems(in, material, kMaterialItems); }

}  // namespace pelorium
