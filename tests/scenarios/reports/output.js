// From the screen to paper and files.
start();
newCompany("Acme");
menu("mnuRBasic");
const w = win("frmPrintPL2");

modal("frmPreview", function (d) {
  equal(d.caption, "Profit And Loss");
  ok(/^Page 1 of [12]$/.test(d.lblPage.value), d.lblPage.value);
  const upright = d.lblPage.value;
  click(d.cmdLandscape);
  ok(d.lblPage.value !== upright, "a lying sheet holds fewer rows");
  key(d, "End");
  equal(d.cmdNext.enabled, false);
  click(d.cmdFirst);
  equal(d.cmdPrevious.enabled, false);
  file(null, "preview.pdf");
  click(d.cmdPDF);
  click(d.cmdClose);
});
click(w.cmdPrint);

for (const [item, name] of [["mnuExportPDF", "pl.pdf"], ["mnuExportSheet", "pl.xlsx"], ["mnuExportCSV", "pl.csv"]]) {
  file(null, name);
  click(w.cmdExport);
  popup(item);
}
click(w.cmdExport);
popup("mnuExportCopy");

// Where nothing can be written the program says so and the report stays.
file(null, "no/such/folder/pl.pdf");
box("Error", null);
click(w.cmdExport);
popup("mnuExportPDF");
ok(/frmPrintPL2.*mnuExportPDF_Click/.test(log()[log().length - 1]), log()[log().length - 1]);

// Long printing can be stopped; then there is no file.
file(null, "stopped.pdf");
stop();
click(w.cmdExport);
popup("mnuExportPDF");
equal(["pl.pdf", "preview.pdf", "pl.xlsx", "pl.csv", "stopped.pdf"].map(exists), [true, true, true, true, false]);

// The graph stands in the place of the grid, follows the dates and goes to paper like any report.
click(w.cmdGraph);
equal([w.grfPL.visible, w.grdPL.visible], [true, false]);
pick(w.cmbDate, "Last Year");
modal("frmPreview", function (d) {
  equal(d.lblPage.value, "Page 1 of 1");
  click(d.cmdClose);
});
click(w.cmdPrint);
click(w.cmdGraph);
ok(w.grdPL.visible, "and back");
click(w.cmdGraph);
menu("mnuRYTDPL");
equal([w.cmdGraph.checked, w.grdPL.visible], [false, true], "another statement begins with its figures");
