#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "core/company/session.h"
#include "lists/list_row.h"

/// Repeats: a check, bill or invoice that is entered again on fixed dates.
namespace tallymere {

inline constexpr RowList Repeat_Rows = {"RepeatTrans", "Name", "repeat"};

/// A row of frmRepeats.
struct RepeatRow {
  std::string Name, Type, SourceCategory;
  Money Amount;
  std::string Frequency;
  std::optional<Date> NextDate;
};
std::vector<RepeatRow> Load_Repeats(Session& session);

/// "Daily" to "Annually", as cmbFreq offers them.
std::vector<std::string> Frequencies();
/// The date after this one. Months keep to `anchor`, the day of the month that was once chosen: 1/31 goes to 2/28 and on
/// to 3/31. Semimonthly is the 15th and the month's end. An unknown frequency stays where it is.
Date Next_Date(const std::string& Frequency, Date date, int anchor);

/// What frmModRepeat shows, as it is typed.
struct RepeatForm {
  std::string Name = {};
  std::string Frequency = {};
  std::optional<Date> NextDate = {};
  std::string AdvDays = {};
  std::string NumRemain = {};  ///< empty: without end
  std::string Type = {};       ///< of the template, with what it was when the repeat was made
  std::string SourceCat = {};
  Money Amount = {};
  int64_t TransactionID = 0;
};
RepeatForm Repeat_Form(ListRow& row);
/// Of a transaction that is to be repeated; nothing when there is none of that type.
std::optional<RepeatForm> New_Repeat(Session& session, const std::string& Type, int64_t TransNum);

/// Saves the form, or answers with the first mistake.
RowSave Save_Repeat(Session& session, ListRow& row, const RepeatForm& form);
/// Asks, and deletes it. true: the list has changed.
bool Delete_Repeat(Session& session, const std::string& Name);

/// Enters what is due, each repeat once, and tells of it; what is used up goes. Each repeat is one commit: its
/// transaction and its next date. One that another program was faster with is left to it. One that cannot be entered is
/// named, and the others go on. true: something was entered, or went.
bool Check_Repeats(Session& session);

}  // namespace tallymere
