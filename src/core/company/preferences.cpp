#include "core/company/preferences.h"

#include "core/store/sql.h"

namespace tallymere {
namespace {

/// A table of two fields, a key and what is set.
struct Settings {
  std::string_view table, key, value;
};
constexpr Settings preferences = {"GeneralPrefs", "Preference", "State"};
constexpr Settings colors = {"Colors", "Items", "Color"};

store::Value Read(store::Database& company, const Settings& settings, std::string_view key) {
  return company.value("SELECT " + store::Quoted(settings.value) + " FROM " + store::Quoted(settings.table) +
                           " WHERE " + store::Quoted(settings.key) + " = ? ORDER BY RowKey",
                       {key});
}

void Write(store::Database& company, const Settings& settings, std::string_view key, const store::Value& value) {
  const std::string table = store::Quoted(settings.table), name = store::Quoted(settings.key),
                    field = store::Quoted(settings.value);
  const bool is_there = !company.value("SELECT RowKey FROM " + table + " WHERE " + name + " = ?", {key}).is_null();
  if (!is_there)
    company.Execute("INSERT INTO " + table + " (" + name + ", " + field + ") VALUES (?, ?)", {key, value});
  else if (Read(company, settings, key) != value)
    company.Execute("UPDATE " + table + " SET " + field + " = ? WHERE " + name + " = ?", {value, key});
}

}  // namespace

std::string Preference(store::Database& company, std::string_view key) {
  return Read(company, preferences, key).text();
}

void Set_Preference(store::Database& company, std::string_view key, std::string_view State) {
  Write(company, preferences, key, State);
}

std::optional<int64_t> Background(store::Database& company, std::string_view item) {
  const store::Value color = Read(company, colors, item);
  return color.is_null() ? std::nullopt : std::optional(color.integer());
}

void Set_Background(store::Database& company, std::string_view item, int64_t color) {
  Write(company, colors, item, color);
}

bool Sales_Tax_On_Cash(store::Database& company) { return Preference(company, preference::SalesBase) == "Cash"; }

}  // namespace tallymere
