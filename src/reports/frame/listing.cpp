#include "reports/frame/listing.h"

namespace tallymere {

void Listing::go_to(size_t place) {
  if (next_ > place) return;
  if (idle_ == Idle::Left_Out) {
    add_foot();
    next_ = place;
  }
  while (next_ <= place) add_head(next_++);
  place_ = place;
}

void Listing::finish() {
  if (idle_ == Idle::Shown && !names_.empty()) go_to(names_.size() - 1);
  add_foot();
}

void Listing::add_head(size_t place) {
  if (idle_ == Idle::Shown && place > 0) add_foot();
  place_ = place;
  table_.add_row(Role::Head).skip(table_.label_column()).text(names_[place]);
}

void Listing::add_foot() {
  if (next_ == 0 || foot_column_ == no_feet) return;
  const int label = table_.label_column();
  table_.add_row(Role::Total).skip(label).text(names_[place_]).skip(foot_column_ - label - 1).money(sum_);
  table_.add_spacer();
  sum_ = {};
}

}  // namespace tallymere
