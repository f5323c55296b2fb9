#ifndef AUTOPILOT_H
#define AUTOPILOT_H

#include <QtCore/QObject>
#include <QtCore/QStringList>
#include <QtCore/QTimer>

class MainWindow;

// The unattended mode: walks the steps given on the command line through the
// same calls the menus make, answers the dialogs it meets and reports each
// step on standard output, one line each. Used by the tests and to take the
// reference's picture of the example; a person never needs it.
class Autopilot : public QObject
{
    Q_OBJECT

public:
    struct Steps
    {
        QString newSaveAs; // New, then Save as into this path
        QString open; // Open this project
        QString answer; // the button every question is answered with
        bool help = false; // F1, with the address printed instead of opened
        QString screenshot; // a picture of the main window at the end
        QString holdUntil; // keep running until this file exists
    };

    // Answers every dialog from construction on.
    Autopilot(MainWindow *window, Steps steps);

    // Runs the steps from the event loop and quits when they are done.
    void start();

private Q_SLOTS:
    void answerDialogs();
    void showUrl(const QUrl &url);

private:
    void run();
    void finish();

    MainWindow *m_window;
    Steps m_steps;
    QString m_pendingSavePath;
    QTimer m_dialogs;
    QTimer m_hold;
    int m_holdTicks = 0;
};

#endif // AUTOPILOT_H
