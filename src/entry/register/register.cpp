#include "entry/register/register.h"

#include <algorithm>

#include "core/ledger/ledger.h"
#include "core/store/recordset.h"
#include "core/values/format.h"
#include "core/values/text.h"

namespace tallymere {
namespace {

constexpr int64_t filled_at_load = 20;

std::optional<Money> Amount_On(const store::Row& row, int column) {
  const Money amount = row.money(column);
  return amount.is_zero() ? std::nullopt : std::optional(amount);
}

bool Is_Asset_Like(std::string_view type) {
  return !contains(type, "Liability") && type != "Accounts Payable" && type != "Credit Card";
}

/// How much a row adds to the balance of a register of this type.
Money Effect(std::string_view type, Money debit, Money credit) {
  return Is_Asset_Like(type) ? debit - credit : credit - debit;
}

}  // namespace

RegisterCaptions Register_Captions(std::string_view AccountType) {
  constexpr struct {
    std::string_view type;
    RegisterCaptions captions;
  } rows[] = {
      {"Accounts Receivable", {"Amt Rec'd", "Amt Billed"}},
      {"Accounts Payable", {"Billed", "Paid"}},
      {"Current Liability", {"Increase", "Decrease"}},
      {"Long Term Liability", {"Increase", "Decrease"}},
      {"Current Asset", {"Decrease", "Increase"}},
      {"Fixed Asset", {"Decrease", "Increase"}},
      {"Credit Card", {"Charge", "Payment"}},
  };
  for (const auto& row : rows)
    if (row.type == AccountType) return row.captions;
  return {"Payment", "Deposit"};
}

bool Takes_New_Lines(std::string_view AccountType) {
  return AccountType != "Accounts Receivable" && AccountType != "Accounts Payable";
}

// --- Load_Register ---------------------------------------------------------------------------------------

Register::Register(Session& session, const std::string& CatID) : session_(session) {
  category_.CatID = CatID;
  Load_Register();
}

void Register::Load_Register() {
  categories_ = CategoryTree::Load(*session_.dbCompany);
  if (const Category* found = categories_.find(category_.CatID)) category_ = *found;
  days_.clear();
  count_ = 0;
  ending_ = Money();
  stale_ = false;
  // Grouped and summed from the index alone: the rows themselves are not touched.
  session_.dbCompany->each(
      "SELECT Date, COUNT(*), SUM(Debit), SUM(Credit) FROM Transactions WHERE Account = ? GROUP BY Date "
      "ORDER BY Date",
      {category_.CatID}, [&](const store::Row& row) {
        days_.push_back({row.date(0), count_, row.integer(1), ending_});
        count_ += row.integer(1);
        ending_ += Effect(category_.AccountType, row.money(2), row.money(3));
      });
  filled_.assign(static_cast<size_t>(count_), false);
  Fill(std::max<int64_t>(count_ - filled_at_load, 0), filled_at_load);
}

std::string Register::lblTotal() const { return Dollar_Text(ending_); }

size_t Register::day_of(int64_t row) const {
  auto after = std::ranges::upper_bound(days_, row, {}, &Day::first);
  return static_cast<size_t>(after - days_.begin()) - 1;
}

void Register::read(Day& day) {
  Money balance = day.before;
  session_.dbCompany->each(
      "SELECT RowKey, TransNum, Date, Number, Name, Category, Memo, Class, Debit, Credit, Cleared FROM "
      "Transactions WHERE Account = ? AND Date IS ? ORDER BY Number, RowKey",
      {category_.CatID, day.date}, [&](const store::Row& row) {
        auto text = [&](int column) { return std::string(row.text(column)); };
        balance += Effect(category_.AccountType, row.money(8), row.money(9));
        const std::string other = text(5);
        day.lines.push_back({.Date = row.date(2),
                             .Number = text(3),
                             .Name = text(4),
                             .Category = other == break_down ? other : categories_.name(other),
                             .Memo = text(6),
                             .Class = text(7),
                             .Credit = Amount_On(row, 9),
                             .Cleared = row.flag(10),
                             .Debit = Amount_On(row, 8),
                             .Balance = balance,
                             .TransNum = row.integer(1),
                             .CatID = other,
                             .key = row.integer(0)});
      });
  if (static_cast<int64_t>(day.lines.size()) == day.count) return;
  stale_ = true;
  day.lines.resize(static_cast<size_t>(day.count));
}

bool Register::filled(int64_t row) const { return row >= 0 && row < count_ && filled_[static_cast<size_t>(row)]; }

void Register::Fill(int64_t first, int64_t lines) {
  const int64_t end = std::min(first + lines, count_);
  for (int64_t row = std::max<int64_t>(first, 0); row < end; ++row) {
    if (Day& day = days_[day_of(row)]; day.lines.empty()) read(day);
    filled_[static_cast<size_t>(row)] = true;
  }
}

RegisterLine Register::line(int64_t row) const {
  if (!filled(row)) return {};
  const Day& day = days_[day_of(row)];
  return day.lines[static_cast<size_t>(row - day.first)];
}

int64_t Register::Row_Of(int64_t TransNum) {
  const auto date =
      session_.dbCompany
          ->value("SELECT Date FROM Transactions WHERE TransNum = ? AND Account = ?", {TransNum, category_.CatID})
          .maybe_date();
  for (Day& day : days_) {
    if (day.date != date) continue;
    if (day.lines.empty()) read(day);
    auto found = std::ranges::find(day.lines, TransNum, &RegisterLine::TransNum);
    if (found != day.lines.end()) return day.first + (found - day.lines.begin());
  }
  return -1;
}

Date Register::New_Line_Date() const {
  return days_.empty() ? session_.today() : days_.back().date.value_or(session_.today());
}

// --- Go to and delete ------------------------------------------------------------------------------------

GoTo Go_To(Session& session, int64_t TransNum) {
  const std::string type =
      session.dbCompany->value("SELECT Type FROM Transactions WHERE TransNum = ? ORDER BY RowKey LIMIT 1", {TransNum})
          .text();
  return {type, Entry_Window(type)};
}

RegisterDeletion Delete_From_Register(Session& session, const RegisterLine& line, const Probe& probe) {
  if (line.TransNum == 0) return {};
  const std::string Type = Go_To(session, line.TransNum).Type;
  const std::string spoken = Spoken(Type, line.Number, line.Name, line.Credit ? line.Credit : line.Debit);
  if (!Confirm_Delete(session.prompts, "Are you sure you want to delete this Item?", line.Cleared, spoken)) return {};
  if (Type == "Payment") {
    session.prompts.box({"Payments can only be deleted from the payment screen.", "No Delete", Icon::Critical});
    return {};
  }
  auto conflict = Save_Or_Conflict([&] {
    store::Transaction tx(*session.dbCompany, "Deleted " + Title_Of_Rows(*session.dbCompany, line.TransNum));
    probe.check(*session.dbCompany);
    Delete_Transaction(session, line.TransNum);
    tx.commit();
  });
  return {.deleted = !conflict, .conflict = conflict};
}

}  // namespace tallymere
