// fails with: near_name\.js:3: no control cmdOkk in frmStart / seen near: cmdOK
start();
click(win("frmStart").cmdOkk);
