// A table that can go back: before a record is changed for the first time, the block of records around it is
// copied away. What was really changed is then told by comparing.
#pragma once

#include <algorithm>
#include <bit>
#include <cstdint>
#include <numeric>
#include <utility>
#include <vector>

namespace pelorium {

// The other side of some records of a table: what they were before a change, or after one that was undone.
template <typename Rec>
struct TablePatch {
  struct Block {
    std::uint32_t number = 0;
    std::uint64_t which = 0;  // bit i: record i of the block
  };
  std::vector<Block> blocks;  // by rising number
  std::vector<Rec> records;   // of the bits that are set, in their order

  bool isEmpty() const { return blocks.empty(); }
  std::size_t Bytes() const { return blocks.size() * sizeof(Block) + records.size() * sizeof(Rec); }
  // Adds what `more` has of records that this one has not.
  void Join(const TablePatch& more);
};

template <typename Rec>
class KeptTable {
 public:
  static constexpr std::size_t kBlock = 64;  // records

  explicit KeptTable(std::size_t records) : records_(records), isKept_((records + kBlock - 1) / kBlock, 1) {}

  const Rec& operator[](std::size_t at) const { return records_[at]; }
  // The record to be written. Costs a look at a byte, and once for each block a copy of it.
  Rec& Edit(std::size_t at) {
    if (isKept_[at / kBlock] == 0) Keep(at / kBlock);
    return records_[at];
  }
  // The same of all records from..to, which lie one behind the other.
  Rec* Edit(std::size_t from, std::size_t to) {
    for (std::size_t block = from / kBlock; block <= to / kBlock; ++block) {
      if (isKept_[block] == 0) Keep(block);
    }
    return &records_[from];
  }

  // From now on changes are kept, from the present state on. A table that was never asked keeps nothing.
  void Begin() {
    if (!isKeeping_) std::fill(isKept_.begin(), isKept_.end(), std::uint8_t{0});
    for (const std::uint32_t block : numbers_) isKept_[block] = 0;
    isKeeping_ = true;
    numbers_.clear();
    kept_.clear();
  }
  bool hasMarks() const { return !numbers_.empty(); }

  // visit(index, before, now) for each record that is not the same (`differs`) any more, until it gives
  // false.
  template <typename Differs, typename Visit>
  void ForEachChange(Differs differs, Visit visit) const {
    for (std::size_t i = 0; i < numbers_.size(); ++i) {
      const std::size_t first = numbers_[i] * kBlock;
      for (std::size_t k = 0; k < RecordsOf(numbers_[i]); ++k) {
        if (differs(kept_[i][k], records_[first + k]) && !visit(first + k, kept_[i][k], records_[first + k]))
          return;
      }
    }
  }

  // What the records that changed were before.
  template <typename Differs>
  TablePatch<Rec> Changes(Differs differs) const;

  // Changes sides with the patch, past the keeping.
  void Swap(TablePatch<Rec>& patch) {
    auto other = patch.records.begin();
    for (const auto& block : patch.blocks) {
      for (std::uint64_t left = block.which; left != 0; left &= left - 1) {
        std::swap(records_[block.number * kBlock + static_cast<std::size_t>(std::countr_zero(left))],
                  *other++);
      }
    }
  }

 private:
  std::size_t RecordsOf(std::size_t block) const {
    return std::min(kBlock, records_.size() - block * kBlock);
  }

  void Keep(std::size_t block) {
    const auto first = records_.begin() + static_cast<std::ptrdiff_t>(block * kBlock);
    kept_.emplace_back(first, first + static_cast<std::ptrdiff_t>(RecordsOf(block)));
    numbers_.push_back(static_cast<std::uint32_t>(block));
    isKept_[block] = 1;
  }

  std::vector<Rec> records_;
  std::vector<std::uint8_t> isKept_;  // of each block; all set while nothing is kept at all
  bool isKeeping_ = false;
  std::vector<std::uint32_t> numbers_;  // of the blocks in kept_
  std::vector<std::vector<Rec>> kept_;
};

template <typename Rec>
template <typename Differs>
TablePatch<Rec> KeptTable<Rec>::Changes(Differs differs) const {
  std::vector<std::size_t> order(numbers_.size());
  std::iota(order.begin(), order.end(), std::size_t{0});
  std::sort(order.begin(), order.end(), [this](auto a, auto b) { return numbers_[a] < numbers_[b]; });
  TablePatch<Rec> patch;
  std::vector<std::size_t> keptAt;  // of each block of the patch
  std::size_t records = 0;
  for (const std::size_t at : order) {
    std::uint64_t which = 0;
    const Rec* now = &records_[numbers_[at] * kBlock];
    for (std::size_t k = 0; k < RecordsOf(numbers_[at]); ++k) {
      if (differs(kept_[at][k], now[k])) which |= std::uint64_t{1} << k;
    }
    if (which == 0) continue;
    patch.blocks.push_back({numbers_[at], which});
    keptAt.push_back(at);
    records += static_cast<std::size_t>(std::popcount(which));
  }
  patch.blocks.shrink_to_fit();
  patch.records.reserve(records);
  for (std::size_t i = 0; i < keptAt.size(); ++i) {
    for (std::uint64_t left = patch.blocks[i].which; left != 0; left &= left - 1) {
      patch.records.push_back(kept_[keptAt[i]][static_cast<std::size_t>(std::countr_zero(left))]);
    }
  }
  return patch;
}

template <typename Rec>
void TablePatch<Rec>::Join(const TablePatch& more) {
  TablePatch joined;
  auto mine = blocks.begin();
  auto other = more.blocks.begin();
  auto myRecord = records.begin();
  auto otherRecord = more.records.begin();
  while (mine != blocks.end() || other != more.blocks.end()) {
    const bool takesMine =
        mine != blocks.end() && (other == more.blocks.end() || mine->number <= other->number);
    const bool takesOther =
        other != more.blocks.end() && (mine == blocks.end() || other->number <= mine->number);
    const std::uint64_t mineSet = takesMine ? mine->which : 0, otherSet = takesOther ? other->which : 0;
    joined.blocks.push_back({takesMine ? mine->number : other->number, mineSet | otherSet});
    for (std::uint64_t left = mineSet | otherSet; left != 0; left &= left - 1) {
      const std::uint64_t bit = left & ~(left - 1);
      if ((mineSet & bit) != 0)
        joined.records.push_back(std::move(*myRecord++));
      else
        joined.records.push_back(*otherRecord);
      if ((otherSet & bit) != 0) ++otherRecord;
    }
    if (takesMine) ++mine;
    if (takesOther) ++other;
  }
  *this = std::move(joined);
}

}  // namespace pelorium
