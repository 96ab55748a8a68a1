#include <QGuiApplication>
#include <QLoggingCategory>
#include <exception>
#include <filesystem>
#include <fstream>
#include <iostream>

#include "reports/frame/report_file.h"
#include "reports/frame/report_paint.h"

/// tallymere-paint TABLEFILE OUT.pdf: paints the pages of a report that another program built.
int main(int argc, char** argv) {
  if (argc != 3) {
    std::cerr << "usage: tallymere-paint TABLEFILE OUT.pdf\n";
    return 2;
  }
  try {
    std::ifstream file(argv[1], std::ios::binary);
    if (!file) throw std::runtime_error(std::string("'") + argv[1] + "' cannot be read");
    const tallymere::ReportTable table = tallymere::Read_Report_File(file);
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
    QLoggingCategory::setFilterRules(QStringLiteral("default.warning=false"));  // what failed is said below
    const QGuiApplication app(argc, argv);
    tallymere::Write_Report_Pdf(table, std::filesystem::path(argv[2]));
    return 0;
  } catch (const std::exception& fault) {
    std::cerr << "tallymere-paint: " << fault.what() << "\n";
    return 1;
  }
}
