#include "forms/tax_form.h"

#include <algorithm>
#include <stdexcept>

#include "core/company/company_settings.h"
#include "core/values/format.h"

namespace tallymere {

// --- lines

void TaxForm::put(std::string_view control, Money reckoned, FormSources sources) {
  const auto def = std::ranges::find(defs_, control, &FormLineDef::control);
  if (def == defs_.end()) throw std::logic_error("no such line: " + std::string(control));
  reckoned = reckoned.rounded_to_cents();
  const auto typed = typed_.find(control);
  lines_.insert_or_assign(
      std::string(control),
      FormLine{*def, reckoned, typed == typed_.end() ? reckoned : typed->second, std::move(sources)});
}

const FormLine* TaxForm::find(std::string_view control) const {
  const auto found = lines_.find(control);
  return found == lines_.end() ? nullptr : &found->second;
}

Money TaxForm::operator[](std::string_view control) const {
  if (const FormLine* line = find(control)) return line->amount;
  throw std::logic_error("not reckoned yet: " + std::string(control));
}

std::vector<FormLine> TaxForm::lines() const {
  std::vector<FormLine> lines;
  for (const FormLineDef& def : defs_)
    if (const FormLine* line = find(def.control)) lines.push_back(*line);
  return lines;
}

// --- on paper and in files

std::string Form_Money(Money amount) { return Format(amount, "$0.00"); }

ReportTable Form_Table(Session& session, const TaxForm& form, const std::string& title, const std::string& period) {
  ReportTable table;
  const CompanyInfo info = Read_Company_Info(session);
  table.heading = {.title = title, .company = info.LegalName.empty() ? info.Name : info.LegalName, .period = period};
  table.heading.note = "Figures for filing, not the official form.";
  table.columns = {{.caption = "Line"},
                   {.caption = "Caption"},
                   {.caption = "Line of today's form"},
                   {.caption = "Amount", .kind = ReportColumn::Kind::Money}};
  for (const FormLine& line : form.lines())
    table.add_row().text(line.def.number).text(line.def.caption).text(line.def.now).money(line.amount);
  return table;
}

void Set_Lines(Layout& layout, const TaxForm& form) {
  for (const FormLine& line : form.lines()) layout.SetText(std::string(line.def.control), Form_Money(line.amount));
}

void Set_Company(Layout& layout, Session& session) {
  const CompanyInfo info = Read_Company_Info(session);
  layout.SetText("LegalName", info.LegalName.empty() ? info.Name : info.LegalName);
  layout.SetText("FedID", info.FedID);
  layout.SetText("LegalAddress", info.LegalAddress);
  const std::string city = info.LegalCity.empty() ? "" : info.LegalCity + ", ";
  layout.SetText("CityLine", city + info.LegalState + " " + info.LegalZip);
}

// --- sums

FormSums::FormSums(store::Database& company, DateRange days) {
  const ItemSums sums = ItemSums::Read(company, SumFilter::Paid_In(days));
  for (const ItemSums::Group& group : sums.groups())
    paid_[group.item][group.SSNum].push_back(
        {Date(group.year, static_cast<unsigned>(group.month), 1), group.sum.amount});
  company.each(
      "SELECT PayrollItem, SUM(Amount) FROM Transactions WHERE Type = 'Liabilitycheck' AND PayrollItem IS NOT NULL"
      " AND PaidThrough >= ? AND PaidThrough <= ? GROUP BY PayrollItem",
      {days.start, days.end}, [this](const store::Row& row) { payments_[std::string(row.text(0))] += row.money(1); });
}

Money FormSums::of(const FormSource& source) const {
  Money sum;
  if (source.payments) {
    if (const auto found = payments_.find(source.item); found != payments_.end()) sum = found->second;
    return sum.times(source.share);
  }
  const auto item = paid_.find(source.item);
  if (item == paid_.end()) return sum;
  const auto add = [&](const std::vector<Month>& months) {
    for (const Month& month : months)
      if (month.first >= source.days.start && month.first <= source.days.end) sum += month.amount;
  };
  if (source.SSNum.empty())
    for (const auto& [ss_num, months] : item->second) add(months);
  else if (const auto one = item->second.find(source.SSNum); one != item->second.end())
    add(one->second);
  return sum.times(source.share);
}

Money FormSums::of(const FormSources& sources) const {
  Money sum;
  for (const FormSource& source : sources) sum += of(source);
  return sum;
}

FormSources Wage_Sources(const PayItems& items, std::string_view tax, DateRange days) {
  FormSources sources;
  for (const PayItem& item : items.all()) {
    const ItemType type = item.type();
    const bool adjusts = (type == ItemType::Addition || type == ItemType::Deduction) && item.PayCal == "Gross";
    if (type == ItemType::Wage || type == ItemType::Commision)
      sources.push_back({item.Name, days});
    else if (adjusts && items.moves_base(item.Name, tax))
      sources.push_back({item.Name, days, type == ItemType::Addition ? 1.0 : -1.0});
  }
  return sources;
}

// --- where a figure comes from

std::vector<TracedRow> Trace(store::Database& company, const FormSources& sources) {
  std::vector<TracedRow> rows;
  const store::Snapshot moment(company);
  for (const FormSource& source : sources) {
    store::Database::Params params{source.item, source.days.start, source.days.end};
    std::string query =
        "SELECT TransNum, Type, Date, Name, PayrollItem, Amount FROM Transactions WHERE PayrollItem = ? AND ";
    query += source.payments ? "Type = 'Liabilitycheck' AND PaidThrough >= ? AND PaidThrough <= ?"
                             : "Type = 'Paycheck' AND Date >= ? AND Date <= ?";
    if (!source.SSNum.empty()) query += " AND SSNum = ?", params.push_back(source.SSNum);
    company.each(query + " ORDER BY RowKey", params, [&](const store::Row& row) {
      rows.push_back({row.integer(0), std::string(row.text(1)), row.date(2).value_or(source.days.start),
                      std::string(row.text(3)), std::string(row.text(4)), row.money(5).times(source.share)});
    });
  }
  std::ranges::stable_sort(rows, {}, [](const TracedRow& row) { return std::pair(row.date, row.TransNum); });
  return rows;
}

}  // namespace tallymere
