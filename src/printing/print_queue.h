#pragma once

#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "core/company/session.h"

/// The queue of checks whose Number is "Print", and how they get their numbers.
namespace tallymere {

/// A waiting check: a line of grdChecks.
struct WaitingCheck {
  int64_t TransNum = 0;
  tallymere::Date Date;
  std::string Name = {};
  Money Amount = {};
};
/// Those that a bank's own rows list, by date.
std::vector<WaitingCheck> Waiting_Checks(Session& session, const std::string& BankID);

/// The number typed for the first check, or what is wrong with it.
std::optional<Fault> First_Check_Fault(const std::string& typed);
/// A check's number as people type it, "1,000" too; nothing for what is none.
std::optional<int64_t> Check_Number(const std::string& typed);

/// A check of a run and the number it is printed with.
struct NumberedCheck {
  int64_t TransNum = 0;
  int64_t number = 0;
};

/// A check that was printed by itself; nothing when its number is none, so that it cannot be asked for by it.
std::optional<NumberedCheck> Run_Of_One(int64_t TransNum, const std::string& number);

/// The first of these numbers that a check of this bank bears already.
std::optional<int64_t> Used_Number(Session& session, const std::string& BankID, int64_t first, int64_t count);

/// Whether the check still waits: another station may have printed or deleted it.
bool Still_Waits(Session& session, int64_t TransNum);

/// Writes the numbers of a run's checks on all their rows, all or none. false, and nothing written, when one of them
/// no longer waits.
bool Number_Checks(Session& session, const std::vector<NumberedCheck>& run);

/// Sends the checks of this run that bear `number` or a higher one back to the queue, with all their rows; those whose
/// number somebody changed since stay. How many went back.
int64_t Good_Print(Session& session, const std::vector<NumberedCheck>& run, int64_t number);

}  // namespace tallymere
