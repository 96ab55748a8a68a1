#pragma once

#include <array>
#include <ctime>
#include <optional>
#include <string>

#include "core/values/date.h"

namespace tallymere {

// Where today comes from. A test or a demo can stand on any day; the time of day runs on all the same.
class Clock {
 public:
  static Clock system() { return Clock({}); }
  static Clock standing_on(Date day) { return Clock(day); }

  Date today() const {
    if (day_) return *day_;
    const std::tm now = local_now();
    return Date(now.tm_year + 1900, static_cast<unsigned>(now.tm_mon + 1), static_cast<unsigned>(now.tm_mday));
  }

  // The local time of day, for the log: "h:mm:ss AM".
  std::string now_time() const {
    const std::tm now = local_now();
    std::array<char, 16> rest{};
    std::strftime(rest.data(), rest.size(), ":%M:%S ", &now);
    return std::to_string((now.tm_hour + 11) % 12 + 1) + rest.data() + (now.tm_hour < 12 ? "AM" : "PM");
  }

  // Day and time of day as the history keeps them: "yyyy-mm-dd hh:mm:ss".
  std::string stamp() const {
    const std::tm now = local_now();
    std::array<char, 16> time{};
    std::strftime(time.data(), time.size(), " %H:%M:%S", &now);
    return today().to_iso() + time.data();
  }

 private:
  explicit Clock(std::optional<Date> day) : day_(day) {}

  static std::tm local_now() {
    const std::time_t now = std::time(nullptr);
    std::tm parts{};
    localtime_r(&now, &parts);
    return parts;
  }

  std::optional<Date> day_;
};

}  // namespace tallymere
