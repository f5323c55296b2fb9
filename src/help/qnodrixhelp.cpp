#include "qnodrixhelp.h"
#include "qnodrixhelp_p.h"

#include "common/qnodrixcom.h"
#include "messages/qnodrixmessagebox_p.h"
#include "registry/qnodrixregistry.h"

#include <QtCore/QFile>
#include <QtCore/QTextStream>
#include <QtCore/QUrl>
#include <QtGui/QDesktopServices>
#include <QtWidgets/QApplication>
#include <QtWidgets/QMessageBox>

namespace QNodrixHelpPrivate {

void readHelpIndex(QTextStream &stream, QHash<QString, QString> &index)
{
    QString line;
    while (stream.readLineInto(&line)) {
        const int eq = line.indexOf(QLatin1Char('='));
        if (eq < 0)
            index.insert(line, line);
        else
            index.insert(line.left(eq), line.mid(eq + 1));
    }
}

QString helpAddress(const QString &helpPath, const QString &language, const QString &document)
{
    // However many slashes the folder starts with ("//opt/m" is /opt/m on
    // Linux), the address keeps three: a fourth would be read as an empty
    // host followed by a path that is not the document's.
    int slashes = 0;
    while (slashes < helpPath.size() && helpPath.at(slashes) == QLatin1Char('/'))
        ++slashes;
    return QStringLiteral("file:///") + helpPath.mid(slashes) + language + document;
}

} // namespace QNodrixHelpPrivate

QNodrixHelp::QNodrixHelp()
    : QObject(nullptr)
    , m_bHelpInfo(false)
{
    // In this order: the machine's help folder, the help-info switch, then
    // the language folder, fixed for the object's life.
    m_sHelpPath = QNodrixRegistry::machinePath() + QNodrixCom::machineHelpFolder();
    m_bHelpInfo = QNodrixRegistry::environmentEnblHelpInfo();
    m_sHelpLanguage = QNodrixCom::language() + QLatin1Char('/');
    init();
}

QNodrixHelp::~QNodrixHelp() = default;

QString QNodrixHelp::getButHelpString(QString className)
{
    return m_hashHelpNumber.value(className);
}

bool QNodrixHelp::getButHelpNumber()
{
    return m_bHelpInfo;
}

void QNodrixHelp::display(QString topic)
{
    if (topic.isEmpty())
        return;
    const QString address = QNodrixHelpPrivate::helpAddress(m_sHelpPath, m_sHelpLanguage,
                                                            m_hashHelpFile.value(topic));
    // A missing document is not reported: the desktop handler decides.
    QDesktopServices::openUrl(QUrl(address, QUrl::TolerantMode));
}

void QNodrixHelp::init()
{
    m_hashHelpNumber.reserve(QNodrixHelpPrivate::topicCount);
    for (int i = 0; i < QNodrixHelpPrivate::topicCount; ++i) {
        const QNodrixHelpPrivate::TopicEntry &entry = QNodrixHelpPrivate::topics[i];
        m_hashHelpNumber.insert(QString::fromLatin1(entry.className),
                                QString::fromLatin1(entry.helpNumber));
    }

    QFile file(m_sHelpPath + QNodrixCom::machineHelpFile());
    if (!file.open(QIODevice::ReadOnly | QIODevice::Text)) {
        // Title and text are shown as they stand, untranslated, as the
        // machine installers know them. Both parts are filled in one pass, so
        // a '%' in the machine folder's name stays part of the path.
        // The box is a plain-text one and the path shows as it is, whatever
        // characters the machine folder's name holds.
        QNodrixMessageBoxPrivate::showStandardBox(
            QMessageBox::Warning, QApplication::activeWindow(), QStringLiteral("ATTENZIONE"),
            QStringLiteral("Impossibile leggere il file %1:\n%2.")
                .arg(QNodrixMessageBoxPrivate::plainArgument(file.fileName()),
                     QNodrixMessageBoxPrivate::plainArgument(file.errorString())));
        return;
    }

    QApplication::setOverrideCursor(QCursor(Qt::WaitCursor));
    QTextStream stream(&file);
#if QT_VERSION < QT_VERSION_CHECK(6, 0, 0)
    // Qt 6 streams read UTF-8 unless told otherwise; Qt 5 ones would follow
    // the locale, so the same index would give other documents.
    stream.setCodec("UTF-8");
#endif
    QNodrixHelpPrivate::readHelpIndex(stream, m_hashHelpFile);
    file.close();
    QApplication::restoreOverrideCursor();
}
