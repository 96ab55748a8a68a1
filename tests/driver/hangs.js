// fails with: hangs\.js:3: the script hangs
start();
print("here");
for (;;) {}
