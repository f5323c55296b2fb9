#include "qnodrixhelp.h"
#include "qnodrixhelp_p.h"

#include "common/qnodrixcom.h"
#include "messages/qnodrixmessagebox_p.h"
#include "registry/qnodrixregistry.h"

#include <QtCore/QStringList>
#include <QtCore/QTextStream>
#include <QtCore/QUrl>
#include <QtGui/QDesktopServices>
#include <QtWidgets/QApplication>
#include <QtWidgets/QMessageBox>

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
    using namespace NdxComHelp;
    // The index comes with the machine folder, which anyone who can write
    // there controls: it may name documents only, and only inside the
    // language folder. Anything else is a topic the index does not hold.
    const QString folder = m_sHelpPath + m_sHelpLanguage;
    const QString value = m_hashHelpFile.value(topic);
    HelpDocument document = helpDocument(value);
    if (value.isEmpty()) {
        qCDebug(lcNdxComHelp) << "help topic" << topic << "is not in the index";
    } else if (document.refused) {
        qCWarning(lcNdxComHelp) << "help document refused for topic" << topic << ":" << value
                                << "is not a document name inside" << folder;
    } else if (!staysInside(folder, folder + document.path)) {
        qCWarning(lcNdxComHelp) << "help document refused for topic" << topic << ":" << value
                                << "leads out of" << folder;
        document = HelpDocument();
    }
    QUrl url = localAddress(folder + document.path);
    if (!document.query.isEmpty())
        url.setQuery(document.query);
    if (!document.fragment.isEmpty())
        url.setFragment(document.fragment);
    // A missing document is not reported: the desktop handler decides.
    QDesktopServices::openUrl(url);
}

void QNodrixHelp::init()
{
    m_hashHelpNumber.reserve(NdxComHelp::topicCount);
    for (int i = 0; i < NdxComHelp::topicCount; ++i) {
        const NdxComHelp::TopicEntry &entry = NdxComHelp::topics[i];
        m_hashHelpNumber.insert(QString::fromLatin1(entry.className),
                                QString::fromLatin1(entry.helpNumber));
    }

    const QString path = m_sHelpPath + QNodrixCom::machineHelpFile();
    QByteArray bytes;
    bool cut = false;
    QString error;
    if (!NdxComHelp::readIndexFile(path, &bytes, &cut, &error)) {
        qCWarning(lcNdxComHelp) << "help index not read:" << path << qUtf8Printable(error);
        // Title and text are shown as they stand, untranslated, as the
        // machine installers know them. Both parts are filled in one pass, so
        // a '%' in the machine folder's name stays part of the path.
        // The box is a plain-text one and the path shows as it is, whatever
        // characters the machine folder's name holds.
        using namespace NdxComMessages;
        showStandardBox(QMessageBox::Warning, QApplication::activeWindow(),
                        QStringLiteral("ATTENZIONE"),
                        fillArguments(QStringLiteral("Impossibile leggere il file %1:\n%2."),
                                      {plainArgument(path), plainArgument(error)}));
        return;
    }

    const NdxComMessages::OverrideCursor wait(Qt::WaitCursor);
    NdxComHelp::readHelpIndex(bytes, m_hashHelpFile, cut);
    if (cut)
        qCWarning(lcNdxComHelp) << "help index" << path << "is longer than"
                                << NdxComHelp::IndexSizeLimit << "bytes: the rest is ignored";
    qCDebug(lcNdxComHelp) << "help index" << path << "read:" << m_hashHelpFile.size() << "topics";
}
