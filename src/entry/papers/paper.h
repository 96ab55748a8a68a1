#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "core/ledger/probe.h"
#include "entry/document/document.h"
#include "entry/document/next_number.h"

/// Estimates, purchase orders and package slips: documents that post nothing. They are one design over three pairs of
/// tables; what tells them apart is one row each of a table.
namespace tallymere {

enum class PaperKind { Estimate, PO, Slip };

struct PaperTable {
  PaperKind kind;
  const char *window, *caption, *word;
  const char *header, *lines;            ///< tables
  const char *party, *address, *number;  ///< fields of the header; a slip's Vendor is a customer
  const char* link;                      ///< field of a line: the Index it belongs to
  const char* parties;                   ///< table
  const char *party_label, *number_label;
  const char* at_first;  ///< said when there is none before
  const char* print;     ///< the window that prints it
  NumberField numbers;
};
const PaperTable& Table_Of(PaperKind kind);

struct PaperLine {
  std::string Item = {};
  std::string Description = {};
  std::optional<double> Qty = {};
  std::optional<Money> Rate = {};
  std::optional<Money> Amount = {};

  bool blank() const { return Item.empty() && Description.empty() && !Qty && !Rate && !Amount; }
  friend bool operator==(const PaperLine&, const PaperLine&) = default;
};

/// What a window shows.
struct PaperDocument {
  int64_t Index = 0;  ///< txtIndex: the key, and the order of the walk
  std::string Party = {};
  std::string Address = {};
  tallymere::Date Date;
  std::string Number = {};
  std::string Memo = {};
  std::vector<PaperLine> lines = {};
  Probe probe = {}, line_probe = {};  ///< of a new one: none

  bool is_new() const { return probe.is_new(); }
  Money total() const;  ///< the sum of the amounts
  bool says_the_same(const PaperDocument& other) const;
};

/// The next one: one Index after the last, with a number that counts the papers.
PaperDocument New_Paper(Session& session, PaperKind kind);
std::optional<PaperDocument> Load_Paper(Session& session, PaperKind kind, int64_t Index);

/// Saves it, open when it is new. With neither a party nor an amount nothing is written. An Index that another user took
/// meanwhile gives way to the next free one.
SaveResult Enter_PO(Session& session, PaperKind kind, PaperDocument& paper);

/// The one before or after in the order of Index; past the last a new one, before the first nothing.
std::optional<PaperDocument> Paper_Beside(Session& session, PaperKind kind, int64_t Index, bool forward);

/// ShippingAddress of a customer or vendor; nothing when there is none.
std::optional<std::string> Party_Address(Session& session, PaperKind kind, const std::string& name);

/// A line whose item was chosen: one piece at its price, of a purchase order at its cost.
PaperLine Paper_Line(Session& session, PaperKind kind, const std::string& ItemName);
/// Qty x Rate; without a Rate the amount stays.
void Reckon(PaperLine& line);

/// What drpItems offers.
struct PaperItem {
  std::string ItemName, Description;
  Money PriceRate;
  int level = 0;
};
std::vector<PaperItem> Paper_Items(Session& session, PaperKind kind);

}  // namespace tallymere
