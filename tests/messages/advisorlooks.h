#ifndef ADVISORLOOKS_H
#define ADVISORLOOKS_H

// What the advisors' boxes must look like, written out independently of the
// library's own tables, and one check of a recorded box against them.

#include "dialogdriver.h"

#include <QtCore/QMetaType>
#include <QtTest/QTest>
#include <QtWidgets/QDialogButtonBox>
#include <QtWidgets/QMessageBox>
#include <QtWidgets/QPushButton>

#include <algorithm>

namespace AdvisorLooks {

using Buttons = QList<QPair<QString, QMessageBox::ButtonRole>>;

struct Look
{
    bool shown = false;
    QString title;
    QMessageBox::Icon icon = QMessageBox::NoIcon;
    Buttons buttons; // in the order of adding
    QString defaultButton; // empty for none
};

inline Look nothing()
{
    return {};
}

inline Look box(QMessageBox::Icon icon, Buttons buttons, QString defaultButton = QString())
{
    return {true, QStringLiteral("Nodrix"), icon, std::move(buttons), std::move(defaultButton)};
}

inline QString si()
{
    return QStringLiteral("Si");
}
inline QString no()
{
    return QStringLiteral("No");
}
inline QString chiudi()
{
    return QStringLiteral("Chiudi");
}
inline QString dettagli()
{
    return QStringLiteral("Dettagli");
}
inline QString adatta()
{
    return QStringLiteral("ADATTA\nAcquisizione SCS");
}
inline QString annulla()
{
    return QStringLiteral("ANNULLA\nModifica");
}
// The text the platform theme gives the standard Ok button ("OK", "&OK").
inline QString okButton()
{
    QDialogButtonBox box(QDialogButtonBox::Ok);
    return box.button(QDialogButtonBox::Ok)->text();
}

// The presentations of the message box.
inline Look question()
{
    return box(QMessageBox::Question,
               {{si(), QMessageBox::AcceptRole}, {no(), QMessageBox::RejectRole}}, no());
}
inline Look warning()
{
    return box(QMessageBox::Warning,
               {{si(), QMessageBox::AcceptRole}, {no(), QMessageBox::RejectRole}}, no());
}
inline Look warningClose()
{
    return box(QMessageBox::Warning, {{chiudi(), QMessageBox::AcceptRole}});
}
inline Look criticalClose()
{
    return box(QMessageBox::Critical, {{chiudi(), QMessageBox::AcceptRole}});
}
inline Look informationClose()
{
    return box(QMessageBox::Information, {{chiudi(), QMessageBox::AcceptRole}});
}
inline Look resizeScs()
{
    return box(QMessageBox::Warning,
               {{adatta(), QMessageBox::NoRole}, {annulla(), QMessageBox::NoRole}}, annulla());
}
inline Look warningCloseHelp()
{
    return box(QMessageBox::Warning,
               {{dettagli(), QMessageBox::NoRole}, {chiudi(), QMessageBox::NoRole}});
}
inline Look informationYesNoHelp()
{
    return box(QMessageBox::Information,
               {{dettagli(), QMessageBox::NoRole},
                {si(), QMessageBox::NoRole},
                {no(), QMessageBox::NoRole}},
               si());
}
// The framework's critical box of the error reports (title through tr()).
// They pass no default button; QMessageBox::critical then makes its first
// accepting button, the only one, the default.
inline Look criticalReport()
{
    return box(QMessageBox::Critical, {{okButton(), QMessageBox::AcceptRole}}, okButton());
}

inline Buttons sortedByRole(Buttons b)
{
    std::stable_sort(b.begin(), b.end(),
                     [](const auto &x, const auto &y) { return x.second < y.second; });
    return b;
}

// Compares one recorded box with its look and text. Use with
// `if (QTest::currentTestFailed()) return;` after it.
inline void compareBox(const NdxComTest::BoxRecord &r, const Look &look, const QString &text)
{
    QVERIFY(!r.actionFailed);
    QCOMPARE(r.title, look.title);
    QCOMPARE(r.text, text);
    QCOMPARE(r.icon, look.icon);
    QCOMPARE(r.buttonsByRole(), sortedByRole(look.buttons));
    QCOMPARE(r.defaultButton, look.defaultButton);
}

} // namespace AdvisorLooks

Q_DECLARE_METATYPE(AdvisorLooks::Look)
Q_DECLARE_METATYPE(NdxComTest::Action)

#endif // ADVISORLOOKS_H
