// fails with: left_over\.js:4: expected and never came / expected box\("Back Up", any\) / seen nothing
start();
newCompany("Acme");
box("Back Up", null, "No");
