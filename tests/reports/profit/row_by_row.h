#pragma once

#include <algorithm>
#include <map>
#include <optional>
#include <string>
#include <vector>

#include "core/values/text.h"
#include "support/report_books.h"

namespace tallymere::testing {

/// The rules of the income statement walked row by row, without an index, a grouping or a tree: slow, and
/// plain enough to check by reading. Rows and accounts are kept in the order of their entry.
struct RowByRow {
  struct Account {
    std::string CatID, AccountType, ParentAccount;  ///< named like its CatID
  };
  std::vector<Account> accounts = {};
  std::vector<Posting> rows = {};
  std::vector<std::string> customers = {}, vendors = {}, classes = {};  ///< in the order of their lists

  Date start, end;
  std::string key = {};
  Basis basis = Basis::Cash;
  std::vector<std::string> lines = {};

  using Texts = std::vector<std::string>;
  bool by_name() const { return key == "PLCus" || key == "PLClass"; }
  bool has_second() const { return key == "PLYTD" || key == "PLPrev"; }
  const Texts& names() const { return key == "PLCus" ? customers : classes; }

  // --- what a category is worth ---

  Texts scope(const std::string& id) const {
    Texts all = {id};
    for (const Account& account : accounts)
      if (account.ParentAccount == id)
        for (const std::string& below : scope(account.CatID)) all.push_back(below);
    return all;
  }

  bool counted(const Posting& row) const {
    if (basis == Basis::Accrual) return true;
    if (row.Type != "Invoice" && row.Type != "Bill") return true;
    return row.Paid;
  }

  const Posting* first_row(const std::string& number) const {
    for (const Posting& row : rows)
      if (std::to_string(row.TransNum) == number) return &row;
    return nullptr;
  }

  static bool expense_side(const std::string& type) {
    return contains(type, "Expense") || type == "Cost of Goods Sold";
  }

  std::string name_of(const std::string& id) const {
    if (id == "<-Break Down->") return id;
    for (const Account& account : accounts)
      if (account.CatID == id) return id;
    return "";
  }

  Money Sum_Category(const std::string& id, Date from, Date to, const std::optional<std::string>& filter,
                     const std::string& type) {
    const Texts ids = scope(id);
    std::vector<const Posting*> found;
    for (const Posting& row : rows) {
      if (std::find(ids.begin(), ids.end(), row.Account) == ids.end() || row.day < from || row.day > to) continue;
      if (!filter || *filter == (key == "PLCus" ? row.Name : row.Class)) found.push_back(&row);
    }
    if (key == "PLDetail")
      std::stable_sort(found.begin(), found.end(), [](auto* a, auto* b) {
        return std::pair(a->day, a->TransNum) < std::pair(b->day, b->TransNum);
      });
    Money sum;
    for (const Posting* row : found) {
      if (key == "PLDetail")
        lines.push_back(row->Type + "|" + row->day.to_text() + "||" + row->Name + "|" + row->Memo + "|" + row->Class +
                        "|" + name_of(row->Category) + "|" + amount_of(*row).to_text());
      if (!counted(*row)) continue;
      if (basis == Basis::Cash && row->Type == "Bill" && contains(row->PaidBy, ";")) {
        const Posting* payment = first_row(split(row->PaidBy, ";")[0]);
        if (payment && payment->day > to) continue;
      }
      if (expense_side(type))
        sum += row->Credit.is_zero() ? row->Debit : -row->Credit;
      else
        sum += row->Credit.is_zero() ? -row->Debit : row->Credit;
    }
    return sum;
  }

  static Money amount_of(const Posting& row) {
    return row.Amount.value_or(row.Debit.is_zero() ? row.Credit : row.Debit);
  }

  Money Sum_CashIncome(const std::string& id) const {
    const Texts ids = scope(id);
    Money sum;
    for (const Posting& row : rows) {
      if (std::find(ids.begin(), ids.end(), row.Account) == ids.end()) continue;
      if (row.Paid || row.Type == "Invoice") {
        Texts numbers = split(row.PaidBy, ";");
        numbers.pop_back();  // what no ";" closes
        for (const std::string& number : numbers) {
          const Posting* payment = first_row(number);
          if (!payment || payment->day < start || payment->day > end) continue;
          auto of_receivable = [&](const Posting& other) {
            return other.TransNum == row.TransNum && other.Account == "AR1";
          };
          auto head = std::find_if(rows.begin(), rows.end(), of_receivable);
          Money receivable = head == rows.end() ? Money() : amount_of(*head);
          Money share = amount_of(row);
          if (receivable > amount_of(*payment) && !receivable.is_zero())
            share = share.share(amount_of(*payment), receivable);
          sum += row.Credit.is_zero() ? -share : share;
        }
      } else if (row.day >= start && row.day <= end) {
        sum += row.Credit.is_zero() ? -amount_of(row).abs() : amount_of(row).abs();
      }
    }
    return sum;
  }

  // --- the statement ---

  Money total = {}, second_total = {}, net = {}, second_net = {};
  std::map<size_t, Money> column_totals = {}, column_nets = {};

  void line(const std::string& label, const std::vector<Money>& amounts) {
    std::string text = label + (key == "PLDetail" ? "||||||" : "");
    for (Money amount : amounts) text += "|" + amount.to_text();
    lines.push_back(text);
  }

  void category(const std::string& id, int level, const std::string& section) {
    const std::string label(static_cast<size_t>(level * 5), ' ');
    if (key == "PLDetail") lines.push_back(label + id);
    std::vector<Money> amounts;
    if (!by_name()) {
      bool cash_income = basis == Basis::Cash && section == "Income";
      amounts.push_back(cash_income ? Sum_CashIncome(id) : Sum_Category(id, start, end, {}, section));
      if (level == 1) total += amounts[0];
    }
    if (has_second()) {
      Date from(start.year() - (key == "PLPrev" ? 1 : 0), 1, 1);
      amounts.push_back(Sum_Category(id, from, key == "PLPrev" ? end.add_months(-12) : end, {}, section));
      second_total += amounts[1];
    }
    if (by_name()) {
      for (size_t at = 0; at < names().size(); ++at) {
        amounts.push_back(Sum_Category(id, start, end, names()[at], section));
        column_totals[at] += amounts[at];
      }
      amounts.push_back(Sum_Category(id, start, end, {}, section));
      if (level == 1) total += amounts.back();
    }
    line(label + id, amounts);
    for (const Account& child : accounts)
      if (child.ParentAccount == id) category(child.CatID, level + 1, section);
  }

  void totals(const std::string& label, Money first, Money second, std::map<size_t, Money>& columns) {
    std::vector<Money> amounts;
    if (by_name())
      for (size_t at = 0; at < names().size(); ++at) amounts.push_back(columns[at]);
    amounts.push_back(first);
    if (has_second()) amounts.push_back(second);
    line(label, amounts);
  }

  void Load_Standard() {
    for (std::string section : {"Income", "Other Income", "Cost of Goods Sold", "Expense", "Other Expense"}) {
      total = second_total = {};
      column_totals.clear();
      lines.push_back(section);
      Texts top;
      for (const Account& account : accounts)
        if (account.ParentAccount.empty() && account.AccountType == section) top.push_back(account.CatID);
      std::sort(top.begin(), top.end());
      for (const std::string& id : top) category(id, 1, section);
      if (key == "PLDetail") lines.push_back("");
      totals("Total " + section, total, second_total, column_totals);
      lines.push_back("");
      bool adds = section == "Income" || section == "Other Income";
      net += adds ? total : -total;
      second_net += adds ? second_total : -second_total;
      for (auto& [at, amount] : column_totals) column_nets[at] += adds ? amount : -amount;
      if (section == "Cost of Goods Sold") {
        if (key == "PLDetail") lines.push_back("");
        totals("Gross Profit", net, second_net, column_nets);
      }
    }
    totals("Net Income", net, second_net, column_nets);
  }

  // --- by name ---

  void Load_Names() {
    const bool vendor = key.starts_with("PLVen"), detail = key.ends_with("Detail");
    for (const std::string& name : vendor ? vendors : customers) {
      std::vector<const Posting*> found;
      for (const Posting& row : rows)
        if (row.Name == name && row.day >= start && row.day <= end) found.push_back(&row);
      if (found.empty()) continue;
      std::stable_sort(found.begin(), found.end(), [](auto* a, auto* b) { return a->TransNum < b->TransNum; });
      if (detail) lines.push_back(name);
      Money sum;
      for (const Posting* row : found) sum += name_row(*row, vendor, detail);
      lines.push_back(name + (detail ? "||||||" : "|") + sum.to_text());
      if (detail) lines.push_back("");
    }
  }

  Money name_row(const Posting& row, bool vendor, bool detail) {
    auto account = std::find_if(accounts.begin(), accounts.end(), [&](auto& a) { return a.CatID == row.Account; });
    if (!counted(row) || account == accounts.end()) return {};
    const std::string& type = account->AccountType;
    if (type != "Cost of Goods Sold" && !contains(type, "Income") && !contains(type, "Expense")) return {};
    Money change;
    bool lowers = false;
    if (row.Debit.is_zero()) {
      lowers = vendor;
      change = row.Credit;
    } else {
      lowers = !vendor;
      change = row.Debit;
    }
    if (detail)
      lines.push_back("     " + row.Type + "|" + row.day.to_text() + "||" + row.Memo + "|" + account->CatID + "|" +
                      name_of(row.Category) + "|" + (lowers ? -amount_of(row) : amount_of(row)).to_text());
    return lowers ? -change : change;
  }
};

}  // namespace tallymere::testing
