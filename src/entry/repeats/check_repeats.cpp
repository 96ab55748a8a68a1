// What repeats is entered here, once for each opening of a company.
#include "core/company/error_box.h"
#include "core/ledger/gate.h"
#include "core/ledger/stored_row.h"
#include "core/ledger/transaction_writer.h"
#include "core/values/text.h"
#include "entry/document/next_number.h"
#include "entry/repeats/repeat.h"
#include "lists/terms.h"

namespace tallymere {
namespace {

/// A row of RepeatTrans.
struct Repeat {
  int64_t key = 0;
  std::string Name, Type, Frequency;
  int64_t TransactionID = 0;
  Date NextDate;
  int AdvDays = 0, anchor = 0;
  std::optional<int64_t> NumRemain;

  bool is_due(Date today) const { return !used_up() && days_between(NextDate.plus_days(-AdvDays), today) >= 0; }
  bool used_up() const { return NumRemain && *NumRemain <= 0; }
};

std::vector<Repeat> Read_Repeats(store::Database& db, std::optional<int64_t> key = {}) {
  std::vector<Repeat> repeats;
  db.each(
      std::string("SELECT RowKey, Name, Type, Frequency, TransactionID, NextDate, AdvDays, AnchorDay, NumRemain"
                  " FROM RepeatTrans") +
          (key ? " WHERE RowKey = ?" : " ORDER BY RowKey"),
      key ? store::Database::Params{*key} : store::Database::Params{}, [&](const store::Row& row) {
        const auto next = row.date(5);
        if (!next) return;
        repeats.push_back({.key = row.integer(0),
                           .Name = std::string(row.text(1)),
                           .Type = std::string(row.text(2)),
                           .Frequency = std::string(row.text(3)),
                           .TransactionID = row.integer(4),
                           .NextDate = *next,
                           .AdvDays = static_cast<int>(row.integer(6)),
                           .anchor = row.is_null(7) ? static_cast<int>(next->day()) : static_cast<int>(row.integer(7)),
                           .NumRemain = row.is_null(8) ? std::nullopt : std::optional(row.integer(8))});
      });
  return repeats;
}

// --- the clone -------------------------------------------------------------------------------------------

/// How a type is entered anew.
struct Kind {
  const char *Type, *title, *among;
};
constexpr Kind kinds[] = {
    {"Invoice", "Added Invoice", "Invoices"}, {"Check", "Added Check", "Checks"}, {"Bill", "Added Bill", "Bills"}};

const Kind* Kind_Of(const std::string& Type) {
  for (const Kind& kind : kinds)
    if (same_text(kind.Type, Type)) return &kind;
  return nullptr;
}

struct Template {
  Date date;
  std::vector<LedgerRow> rows;
};

Template Read_Template(store::Database& db, const Repeat& repeat) {
  Template of{repeat.NextDate, {}};
  auto row = db.OpenRecordset("SELECT * FROM Transactions WHERE TransNum = ? AND Type = ? ORDER BY RowKey",
                              {repeat.TransactionID, repeat.Type});
  for (; !row.Eof(); row.MoveNext()) {
    of.date = row["Date"].maybe_date().value_or(repeat.NextDate);
    of.rows.push_back(Stored_Row(row));
  }
  return of;
}

/// After the last invoice's, where that is a number.
std::string Invoice_Number(store::Database& db) {
  const std::string last =
      db.value(
            "SELECT Number FROM Transactions WHERE Type = 'Invoice' AND Account = 'AR1' ORDER BY TransNum DESC LIMIT 1")
          .text();
  const bool counts = !last.empty() && last.size() < 16 && last.find_first_not_of("0123456789") == std::string::npos;
  return counts ? Next_Free_Number(db, Invoice_Numbers, std::stoll(last) + 1)
                : After_Highest_Number(db, Invoice_Numbers);
}

std::optional<std::string> Number_For(store::Database& db, const Repeat& repeat) {
  if (repeat.Type == "Invoice") return Invoice_Number(db);
  if (repeat.Type == "Check") return "Print";
  return std::nullopt;  // a bill keeps its own
}

/// A bill falls due as its terms say; without any, as many days after its date as the template.
std::optional<Date> Due(Session& session, const Repeat& repeat, const LedgerRow& row, Date template_date) {
  if (!row.DueDate || repeat.Type != "Bill") return row.DueDate;
  if (const auto due = Due_Date(session, row.Terms, repeat.NextDate)) return due;
  return repeat.NextDate.plus_days(days_between(template_date, *row.DueDate));
}

void Clone(Session& session, const Repeat& repeat, const Template& of) {
  store::Database& db = *session.dbCompany;
  const auto number = Number_For(db, repeat);
  const LedgerRow& head = of.rows.front();
  Transaction_Writer writer(session, {.Type = repeat.Type,
                                      .Date = repeat.NextDate,
                                      .Number = number.value_or(head.Number.value_or("")),
                                      .Name = head.Name.value_or(""),
                                      .Address = head.Address.value_or("")});
  for (LedgerRow row : of.rows) {
    if (number) row.Number = number;
    row.Cleared = row.Paid = false;
    row.PaidBy.clear();
    row.AmountReceived = repeat.Type == "Invoice" ? std::optional(Money()) : row.AmountReceived;
    row.DueDate = Due(session, repeat, row, of.date);
    writer.add(row);
  }
  writer.commit();
}

// --- one repeat ------------------------------------------------------------------------------------------

void Advance(store::Database& db, Repeat& repeat) {
  repeat.NextDate = Next_Date(repeat.Frequency, repeat.NextDate, repeat.anchor);
  if (repeat.NumRemain) --*repeat.NumRemain;
  db.Execute("UPDATE RepeatTrans SET NextDate = ?, NumRemain = ?, AnchorDay = ? WHERE RowKey = ?",
             {repeat.NextDate, repeat.NumRemain, repeat.anchor, repeat.key});
}

Box Added(const Repeat& repeat, const Kind& kind) {
  return {"Repeat Transaction \"" + repeat.Name + "\" was added to your Current " + kind.among, kind.title,
          Icon::Information};
}

Box Used_Up(const Repeat& repeat) {
  const std::string name = "\"" + repeat.Name + "\"";
  return {"Number of Repeats for " + name + " has run out. " + name + " has been removed.", "No more Repeats",
          Icon::Information};
}

Box Without_Template(const Repeat& repeat) {
  return {"Repeat Transaction \"" + repeat.Name + "\" could not be added: the " + repeat.Type +
              " that it repeats is not there any more.",
          "No " + repeat.Type, Icon::Information,
          "It is tried again at the next start, until the repeat is deleted from the list of Repeat Transactions."};
}

/// In one commit. What is to be told of it; nothing when there was nothing to do.
std::vector<Box> Run(Session& session, const Repeat& as_read) {
  store::Database& db = *session.dbCompany;
  store::Transaction tx(db, "Repeat " + as_read.Name);
  auto now = Read_Repeats(db, as_read.key);
  if (now.empty() || now.front().NextDate != as_read.NextDate) return {};  // another program was faster
  Repeat repeat = now.front();
  std::vector<Box> told;
  if (repeat.is_due(session.today())) {
    if (const Kind* kind = Kind_Of(repeat.Type)) {
      const Template of = Read_Template(db, repeat);
      if (of.rows.empty()) return {Without_Template(repeat)};
      Clone(session, repeat, of);
      told.push_back(Added(repeat, *kind));
    }
    Advance(db, repeat);
  }
  if (repeat.used_up()) {
    db.Execute("DELETE FROM RepeatTrans WHERE RowKey = ?", {repeat.key});
    told.push_back(Used_Up(repeat));
  }
  tx.commit();
  return told;
}

}  // namespace

bool Check_Repeats(Session& session) {
  const Unattended program(session);  // what is due is due, whoever opens the company
  bool changed = false;
  for (const Repeat& repeat : Read_Repeats(*session.dbCompany)) {
    if (!repeat.is_due(session.today()) && !repeat.used_up()) continue;
    try {
      for (const Box& box : Run(session, repeat)) {
        changed = true;
        session.prompts.box(box);
      }
    } catch (const store::Error& fault) {
      Error_Box(session, "Repeat " + repeat.Name, "Check_Repeats", fault);
    }
  }
  return changed;
}

}  // namespace tallymere
