#include "app/drive/scripted_prompts.h"

#include <algorithm>

namespace tallymere::drive {

using Kind = Expectations::Kind;

std::optional<Expectations::Expected> ScriptedPrompts::meet(const Box& box) {
  const auto expected = expectations_.meet(Kind::Box, box.title, box.text);
  if (expected && expected->detail && box.detail.find(*expected->detail) == std::string::npos)
    expectations_.fail({"the line below " + Shown(box.text), Shown(*expected->detail), Shown(box.detail)});
  return expected;
}

void ScriptedPrompts::box(const Box& box) {
  const auto expected = meet(box);
  if (expected && expected->answer.value_or("OK") != "OK") {
    expectations_.fail({"the box offers no such answer", Shown(*expected->answer), "\"OK\""});
  }
}

/// What the answer to a question is: of these words, or "Enter" and "Esc" for what those keys give.
std::string ScriptedPrompts::answer(const Box& box, const std::vector<std::string>& words, const std::string& usual,
                                    const std::string& stay) {
  const auto expected = meet(box);
  if (!expected) return stay;
  const std::string given = expected->answer.value_or("");
  if (given == "Enter") return usual;
  if (given == "Esc") return stay;
  if (std::ranges::find(words, given) != words.end()) return given;
  expectations_.fail({"the box " + Shown(box.text) + " asks", "an answer it offers", Shown(given)});
  return stay;
}

bool ScriptedPrompts::ask(const Box& box, Buttons buttons) {
  return answer(box, {"Yes", "No"}, buttons == Buttons::YesNoDefaultNo ? "No" : "Yes", "No") == "Yes";
}

std::optional<bool> ScriptedPrompts::ask_or_stay(const Box& box) {
  const std::string given = answer(box, {"Yes", "No", "Cancel"}, "Yes", "Cancel");
  return given == "Cancel" ? std::nullopt : std::optional(given == "Yes");
}

std::optional<std::string> ScriptedPrompts::input(const std::string& title, const std::string& prompt) {
  const auto expected = expectations_.meet(Kind::Input, title, prompt);
  return expected ? expected->answer : std::nullopt;
}

std::string ScriptedPrompts::open_file(const std::string& filter, const std::string&) { return file(filter); }

std::string ScriptedPrompts::save_file(const std::string& filter, const std::string&) { return file(filter); }

std::string ScriptedPrompts::file(const std::string& filter) {
  const auto expected = expectations_.meet(Kind::File, filter, "");
  if (!expected || expected->answer.value_or("").empty()) return "";
  return (folder_ / *expected->answer).string();
}

}  // namespace tallymere::drive
