#pragma once

#include <string>
#include <vector>

#include "core/company/prompts.h"
#include "core/ledger/transaction_writer.h"
#include "payroll/calc/exact.h"

namespace tallymere {

/// The cells of the four grids are text, as they are typed and shown; "" is an empty cell.
struct EarningRow {
  std::string Name, Rate, Hours;
  friend bool operator==(const EarningRow&, const EarningRow&) = default;
};
struct OtherItemRow {
  std::string Item, Rate, Quantity, Type;
  friend bool operator==(const OtherItemRow&, const OtherItemRow&) = default;
};
/// "0.00" texts. What is taken from the employee, and what the company pays as a tax, is negative.
struct SummaryRow {
  std::string Name, Amount, YTD;
  /// Of a check opened again: the rows this amount stood in. They are written as they were while it is not changed.
  std::string loaded_amount = {};
  std::vector<LedgerRow> loaded = {};

  Exact amount() const;  ///< 0 for an empty cell
  friend bool operator==(const SummaryRow& a, const SummaryRow& b) { return a.Name == b.Name && a.Amount == b.Amount; }
};

/// A paycheck as its window shows it: the four grids and the labels, the hidden ones too.
struct Paycheck {
  std::vector<EarningRow> grdEarnings;
  std::vector<OtherItemRow> grdOtherItems;
  std::vector<SummaryRow> grdEmployee, grdCompany;
  size_t current_earning = 0;  ///< the row of grdEarnings that the cursor is on

  Money gross;   ///< the wages: what every tax is taken of. Nothing moves it after the wages
  Money lblNet;  ///< wages, then additions and gross-based deductions
  Exact net;     ///< wages less taxes, unrounded: what net-based items are a percentage of
  Money lblYearEarnings, lblRegSal;
  Exact lblFedHold;  ///< the federal withholding, negative, unrounded
  double lblSick = 0, lblVac = 0;
  std::string lblMemo;
  Money lblTotal;  ///< net pay

  /// Rows of a check opened again whose items are gone; no calculation touches them.
  std::vector<SummaryRow> unknown_employee, unknown_company;

  std::vector<Box> boxes;          ///< what the calculation has to say in a box
  std::vector<std::string> notes;  ///< and in a quiet line below the grids

  /// Whether somebody changed a cell: the check's own texts, not what follows from them.
  friend bool same_cells(const Paycheck& a, const Paycheck& b) {
    return a.grdEarnings == b.grdEarnings && a.grdOtherItems == b.grdOtherItems && a.grdEmployee == b.grdEmployee &&
           a.grdCompany == b.grdCompany;
  }
};

}  // namespace tallymere
