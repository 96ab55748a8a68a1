#pragma once

#include <stdexcept>
#include <string>

namespace tallymere::store {

/// A storage fault. The numbers are the ones the windows and the log speak of.
class Error : public std::runtime_error {
 public:
  Error(int error_number, const std::string& description) : std::runtime_error(description), number(error_number) {}
  std::string description() const { return what(); }

  const int number;
};

namespace errors {
inline constexpr int no_current_record = 3021;
inline constexpr int duplicate_key = 3022;
inline constexpr int file_not_found = 3024;
inline constexpr int disk_full = 3026;
inline constexpr int read_only = 3027;
inline constexpr int wrong_password = 3031;
inline constexpr int no_transaction = 3034;
inline constexpr int disk_or_network = 3043;
inline constexpr int bad_path = 3044;
inline constexpr int file_damaged = 3049;
inline constexpr int cannot_open = 3051;
inline constexpr int bad_statement = 3075;
inline constexpr int no_such_table = 3078;
inline constexpr int too_long = 3163;
inline constexpr int data_changed = 3197;
inline constexpr int no_such_category = 3201;
inline constexpr int database_exists = 3204;
inline constexpr int locked = 3218;
inline constexpr int no_such_field = 3265;
inline constexpr int not_a_database = 3343;
inline constexpr int conversion = 3421;
inline constexpr int newer_file = 3349;
inline constexpr int undo_refused = 3350;
inline constexpr int not_allowed = 3351;  ///< by the user's rights or the closing date
}  // namespace errors

}  // namespace tallymere::store
