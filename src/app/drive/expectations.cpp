#include "app/drive/expectations.h"

#include <array>

namespace tallymere::drive {

namespace {

std::string Name(Expectations::Kind kind) {
  static constexpr std::array names{"box", "input", "file", "modal"};
  return names[static_cast<size_t>(kind)];
}

std::string Describe(Expectations::Kind kind, const std::optional<std::string>& title,
                     const std::optional<std::string>& text) {
  const auto part = [](const std::optional<std::string>& some) { return some ? Shown(*some) : "any"; };
  const bool one_name = kind == Expectations::Kind::Modal || kind == Expectations::Kind::File;
  return Name(kind) + "(" + part(title) + (one_name ? "" : ", " + part(text)) + ")";
}

bool Matches(const std::optional<std::string>& wanted, const std::string& seen) { return !wanted || *wanted == seen; }

}  // namespace

void Expectations::add(Expected expected) {
  expected.where = where_;
  queue_.push_back(std::move(expected));
}

void Expectations::add_first(Expected expected) {
  expected.where = where_;
  queue_.push_front(std::move(expected));
}

std::optional<Expectations::Expected> Expectations::meet(Kind kind, const std::string& title, const std::string& text) {
  if (quiet_) return std::nullopt;
  const std::string seen = Describe(kind, title, text);
  if (queue_.empty()) {
    fail({"unexpected " + Name(kind), "none", seen});
    return std::nullopt;
  }
  Expected next = std::move(queue_.front());
  queue_.pop_front();
  if (next.kind == kind && Matches(next.title, title) && Matches(next.text, text)) return next;
  fail({"not the " + Name(next.kind) + " that " + next.where + " expects", Describe(next.kind, next.title, next.text),
        seen});
  return std::nullopt;
}

void Expectations::fail_at(const std::string& where, const Failed& failed) {
  if (!quiet_) failures_.push_back(where + ": " + failed.text());
}

void Expectations::finish() {
  // After a failure what was left over says nothing.
  for (const Expected& left : failed() ? std::deque<Expected>() : queue_) {
    fail_at(left.where, {"expected and never came", Describe(left.kind, left.title, left.text), "nothing"});
  }
  queue_.clear();
}

}  // namespace tallymere::drive
