#ifndef NDXCOM_TOOLSCREEN_H
#define NDXCOM_TOOLSCREEN_H

// Call before the QApplication exists. Without a display (no DISPLAY, no
// WAYLAND_DISPLAY, no QT_QPA_PLATFORM) the tools run on the offscreen
// platform. Qt sizes a message box after the screen it is shown on, and the
// offscreen platform's own screen (800 pixels wide) is smaller than any
// workstation's, so its boxes wrap their texts narrower than a user ever sees
// them: on Qt 6 the offscreen platform is given a 1920x1080 screen instead,
// unless QT_QPA_PLATFORM already carries options of its own. Qt 5's offscreen
// platform has a fixed 800x600 screen and takes no configuration; there the
// pictures stay narrower (run the tools on a real or virtual X display of the
// right size for true ones).
void prepareScreen();

// Call once the QApplication exists, after prepareScreen(): on Windows the
// current folder is the temporary one while the platform reads its
// configuration, and goes back here.
void screenReady();

#endif // NDXCOM_TOOLSCREEN_H
