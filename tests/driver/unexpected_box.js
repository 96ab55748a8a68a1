// fails with: unexpected_box\.js:6: unexpected box / expected none / seen box\("Help", "Please Contact
start();
newCompany("Acme");
const before = rows("SELECT Name FROM CompanyInfo");
// A box nobody expects must not pass, even where the script would swallow the error.
try { tool("btnHelp"); } catch (error) { print(error.message); }
