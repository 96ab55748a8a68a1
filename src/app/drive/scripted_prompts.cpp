#include "app/drive/scripted_prompts.h"

namespace tallymere::drive {

using Kind = Expectations::Kind;

void ScriptedPrompts::box(const Box& box) {
  const auto expected = expectations_.meet(Kind::Box, box.title, box.text);
  if (expected && expected->answer.value_or("OK") != "OK") {
    expectations_.fail({"the box offers no such answer", Shown(*expected->answer), "\"OK\""});
  }
}

bool ScriptedPrompts::ask(const Box& box, Buttons) {
  const auto expected = expectations_.meet(Kind::Box, box.title, box.text);
  if (!expected) return false;
  const std::string answer = expected->answer.value_or("");
  if (answer != "Yes" && answer != "No") {
    expectations_.fail({"the box " + Shown(box.text) + " asks", "an answer \"Yes\" or \"No\"", Shown(answer)});
  }
  return answer == "Yes";
}

std::optional<bool> ScriptedPrompts::ask_or_stay(const Box& box) {
  const auto expected = expectations_.meet(Kind::Box, box.title, box.text);
  if (!expected) return std::nullopt;
  const std::string answer = expected->answer.value_or("");
  if (answer != "Yes" && answer != "No" && answer != "Cancel") {
    expectations_.fail(
        {"the box " + Shown(box.text) + " asks", "an answer \"Yes\", \"No\" or \"Cancel\"", Shown(answer)});
  }
  return answer == "Cancel" ? std::nullopt : std::optional(answer == "Yes");
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
