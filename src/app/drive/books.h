#pragma once

#include <QJSEngine>
#include <QJSValue>
#include <filesystem>
#include <string>
#include <vector>

#include "core/store/value.h"

/// The company file as another program or another user sees it: through a connection of its own.
namespace tallymere::drive::books {

/// The rows of a query: amounts as decimals, dates m/d/yyyy, flags true or false.
QJSValue Rows(QJSEngine& engine, const std::filesystem::path& company, const std::string& sql,
              const std::vector<QJSValue>& params);
/// Changes the company as another user; the number of rows changed.
int Change(const std::filesystem::path& company, const std::string& sql, const std::vector<QJSValue>& params);
/// The rows of one transaction in the order they were written, each without its empty fields.
QJSValue Ledger(QJSEngine& engine, const std::filesystem::path& company, const QJSValue& number);

}  // namespace tallymere::drive::books
