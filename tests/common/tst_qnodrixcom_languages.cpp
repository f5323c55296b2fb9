// Languages, the default plane palette and the translatable names.
//
// The order of the test functions matters here: the palette and the names
// are static state that is empty until the application fills it, and the
// name lists are only ever appended to. Each function states what it
// expects to find.
#include <QNodrixCom>
#include <QNodrixRegistry>

#include "ndxcomtest.h"

#include <QtCore/QSettings>
#include <QtCore/QTranslator>
#include <QtTest/QtTest>
#include <QtWidgets/QApplication>

#include <limits>
#include <type_traits>

struct LanguageMembers : QNodrixCom
{
    using QNodrixCom::m_eLanguageApp;
    using QNodrixCom::m_sLanguageEN;
    using QNodrixCom::m_sLanguageES;
    using QNodrixCom::m_sLanguageIT;
    using QNodrixCom::m_sLanguageSZH;
    using QNodrixCom::m_sLanguageZH;
    using QNodrixCom::m_slFili;
    using QNodrixCom::m_slLanguages;
    using QNodrixCom::m_slModuleOperation;
};

namespace {
// Answers "<context>|<text>" for every request and remembers what it was
// asked, so the test sees the context and the exact source texts.
class RecordingTranslator : public QTranslator
{
public:
    QString translate(const char *context, const char *sourceText, const char *disambiguation,
                      int n) const override
    {
        Q_UNUSED(disambiguation);
        Q_UNUSED(n);
        asked << QString::fromLatin1(context) + QLatin1Char('|') + QString::fromUtf8(sourceText);
        return QStringLiteral("%1|%2").arg(QString::fromLatin1(context),
                                           QString::fromUtf8(sourceText));
    }
    bool isEmpty() const override { return false; }

    mutable QStringList asked;
};

const QStringList planeTexts = {QStringLiteral("Piano cilindro"), QStringLiteral("Piano BodyKnit"),
                                QStringLiteral("Piano BodyMap"),  QStringLiteral("Piano BodyShape"),
                                QStringLiteral("Piano maglia"),   QStringLiteral("Piano guidafili"),
                                QStringLiteral("Piano comandi")};
const QStringList operationTexts
    = {QStringLiteral("Inserisci Pat"),  QStringLiteral("Sostituisci Pat"),
       QStringLiteral("Modifica Pat"),   QStringLiteral("Copia Pat"),
       QStringLiteral("Incolla Pat"),    QStringLiteral("Salva con Nome Pat"),
       QStringLiteral("Rimuovi Pat"),    QStringLiteral("Visualizza Pat"),
       QStringLiteral("Sostituisci GDF")};
const QStringList filiTexts = {QStringLiteral("0 Fili"), QStringLiteral("1 Filo"),
                               QStringLiteral("2 Fili"), QStringLiteral("3 Fili")};

QStringList planeNames()
{
    return {QNodrixCom::nameCylinderPlane(), QNodrixCom::nameBodyKnitPlane(),
            QNodrixCom::nameBodyMapPlane(),  QNodrixCom::nameBodyShapePlane(),
            QNodrixCom::nameStitchPlane(),   QNodrixCom::nameFingerPlane(),
            QNodrixCom::nameCommandPlane()};
}

QString operation(int index)
{
    return QNodrixCom::moduleAssocOperation(QNodrixCom::enModuleAssocOperation(index));
}

QStringList withContext(const QStringList &texts)
{
    QStringList out;
    for (const QString &t : texts)
        out << QStringLiteral("QNodrixCom|") + t;
    return out;
}

void storeLanguage(const QVariant &value)
{
    QSettings store;
    if (value.isValid())
        store.setValue(QStringLiteral("Settings/Language"), value);
    else
        store.remove(QStringLiteral("Settings/Language"));
    store.sync();
}
} // namespace

class tst_QNodrixCom_Languages : public QObject
{
    Q_OBJECT

private slots:
    void languageMembers();
    void languageOfAFreshStore();
    void language_data();
    void language();
    void languageGettersReadTheList();
    void languageApp();

    void paletteEmptyBeforeInit();
    void palette_data();
    void palette();
    void paletteRebuiltByASecondCall();

    void namesEmptyBeforeInit();
    void translatableStrings();
    void moduleAssocOperation_data();
    void moduleAssocOperation();
    void stringFili_data();
    void stringFili();
    void secondCallAppends();
};

void tst_QNodrixCom_Languages::languageMembers()
{
    QCOMPARE(LanguageMembers::m_sLanguageIT, QStringLiteral("it"));
    QCOMPARE(LanguageMembers::m_sLanguageEN, QStringLiteral("en"));
    QCOMPARE(LanguageMembers::m_sLanguageZH, QStringLiteral("zh"));
    QCOMPARE(LanguageMembers::m_sLanguageSZH, QStringLiteral("szh"));
    QCOMPARE(LanguageMembers::m_sLanguageES, QStringLiteral("es"));
    QCOMPARE(QNodrixCom::refLanguages(),
             QStringList({QStringLiteral("it"), QStringLiteral("en"), QStringLiteral("zh"),
                          QStringLiteral("szh"), QStringLiteral("es")}));
    QCOMPARE(&QNodrixCom::refLanguages(), &LanguageMembers::m_slLanguages);
}

void tst_QNodrixCom_Languages::languageOfAFreshStore()
{
    // Nothing stored: the number is -1 and the code "en".
    storeLanguage(QVariant());
    QCOMPARE(int(QNodrixRegistry::keyLanguage()), -1);
    QCOMPARE(QNodrixCom::language(), QStringLiteral("en"));
}

void tst_QNodrixCom_Languages::language_data()
{
    QTest::addColumn<QVariant>("stored");
    QTest::addColumn<QString>("code");
    QTest::newRow("-1") << QVariant(-1) << QStringLiteral("en");
    QTest::newRow("0") << QVariant(0) << QStringLiteral("it");
    QTest::newRow("1") << QVariant(1) << QStringLiteral("en");
    QTest::newRow("2") << QVariant(2) << QStringLiteral("es");
    QTest::newRow("3") << QVariant(3) << QStringLiteral("en");
    QTest::newRow("4") << QVariant(4) << QStringLiteral("en");
    QTest::newRow("5") << QVariant(5) << QStringLiteral("en");
    QTest::newRow("6") << QVariant(6) << QStringLiteral("zh");
    QTest::newRow("7") << QVariant(7) << QStringLiteral("szh");
    QTest::newRow("8") << QVariant(8) << QStringLiteral("en");
    QTest::newRow("INT_MAX") << QVariant(std::numeric_limits<int>::max()) << QStringLiteral("en");
    QTest::newRow("INT_MIN") << QVariant(std::numeric_limits<int>::min()) << QStringLiteral("en");
    // The number is read as an int: a text that is no number reads as 0.
    QTest::newRow("text") << QVariant(QStringLiteral("szh")) << QStringLiteral("it");
    QTest::newRow("text 7") << QVariant(QStringLiteral("7")) << QStringLiteral("szh");
}

void tst_QNodrixCom_Languages::language()
{
    QFETCH(QVariant, stored);
    QFETCH(QString, code);
    storeLanguage(stored);
    QCOMPARE(QNodrixCom::language(), code);
    // Each call reads the store anew.
    storeLanguage(QVariant(0));
    QCOMPARE(QNodrixCom::language(), QStringLiteral("it"));
}

void tst_QNodrixCom_Languages::languageGettersReadTheList()
{
    QCOMPARE(QNodrixCom::languageIt(), QStringLiteral("it"));
    QCOMPARE(QNodrixCom::languageEn(), QStringLiteral("en"));
    QCOMPARE(QNodrixCom::languageZh(), QStringLiteral("zh"));
    QCOMPARE(QNodrixCom::languageSzh(), QStringLiteral("szh"));
    QCOMPARE(QNodrixCom::languageEs(), QStringLiteral("es"));

    const QStringList saved = QNodrixCom::refLanguages();
    QNodrixCom::refLanguages()[2] = QStringLiteral("cn");
    QNodrixCom::refLanguages()[4] = QStringLiteral("sp");
    QCOMPARE(QNodrixCom::languageZh(), QStringLiteral("cn"));
    QCOMPARE(QNodrixCom::languageEs(), QStringLiteral("sp"));
    // The single members, and language(), do not follow the list.
    QCOMPARE(LanguageMembers::m_sLanguageZH, QStringLiteral("zh"));
    storeLanguage(QVariant(6));
    QCOMPARE(QNodrixCom::language(), QStringLiteral("zh"));

    // A list made shorter: the missing elements read as empty strings.
    QNodrixCom::refLanguages() = QStringList {QStringLiteral("it"), QStringLiteral("en")};
    QCOMPARE(QNodrixCom::languageEn(), QStringLiteral("en"));
    QCOMPARE(QNodrixCom::languageZh(), QString());
    QCOMPARE(QNodrixCom::languageSzh(), QString());
    QCOMPARE(QNodrixCom::languageEs(), QString());
    QNodrixCom::refLanguages().clear();
    QCOMPARE(QNodrixCom::languageIt(), QString());

    QNodrixCom::refLanguages() = saved;
    QCOMPARE(QNodrixCom::languageEs(), QStringLiteral("es"));
}

void tst_QNodrixCom_Languages::languageApp()
{
    QCOMPARE(QNodrixCom::languageApp(), 1);
    QCOMPARE(QNodrixCom::languageApp(), int(QNodrixCom::eLanguage_en));
    // No check of the value.
    for (int value : {0, 4, 5, -1, 99}) {
        QNodrixCom::setLanguageApp(value);
        QCOMPARE(QNodrixCom::languageApp(), value);
    }
    QNodrixCom::setLanguageApp(QNodrixCom::eLanguage_en);
}

void tst_QNodrixCom_Languages::paletteEmptyBeforeInit()
{
    QVERIFY(QNodrixCom::palettePlaneDefault().isEmpty());
    QVERIFY((
        std::is_same<decltype(QNodrixCom::palettePlaneDefault()), QVector<unsigned int> &>::value));
}

void tst_QNodrixCom_Languages::palette_data()
{
    QTest::addColumn<int>("index");
    QTest::addColumn<uint>("colour");
    QTest::newRow("0") << 0 << 0xFF000000u;
    QTest::newRow("1") << 1 << 0xFFDEDE01u;
    QTest::newRow("2") << 2 << 0xFFDEDE02u;
    QTest::newRow("127") << 127 << 0xFFDEDE7Fu;
    QTest::newRow("128") << 128 << 0xFFDEDE80u;
    QTest::newRow("253") << 253 << 0xFFDEDEFDu;
    QTest::newRow("254") << 254 << 0xFFDEDEFEu;
    QTest::newRow("255") << 255 << 0xFFFFFFFFu;
}

void tst_QNodrixCom_Languages::palette()
{
    QFETCH(int, index);
    QFETCH(uint, colour);
    QNodrixCom::initPalettePlaneDefault();
    const QVector<unsigned int> &p = QNodrixCom::palettePlaneDefault();
    QCOMPARE(p.size(), 256);
    QCOMPARE(p.at(index), colour);
    // Every middle entry: opaque, red and green 0xDE, blue the index.
    for (int i = 1; i < 255; ++i) {
        QCOMPARE(qAlpha(p.at(i)), 0xFF);
        QCOMPARE(qRed(p.at(i)), 0xDE);
        QCOMPARE(qGreen(p.at(i)), 0xDE);
        QCOMPARE(qBlue(p.at(i)), i);
    }
}

void tst_QNodrixCom_Languages::paletteRebuiltByASecondCall()
{
    QNodrixCom::initPalettePlaneDefault();
    const QVector<unsigned int> first = QNodrixCom::palettePlaneDefault();
    // The reference is the member itself: changes through it stay until
    // the next initialisation, which rebuilds the same table.
    QVector<unsigned int> &ref = QNodrixCom::palettePlaneDefault();
    QCOMPARE(&ref, &QNodrixCom::palettePlaneDefault());
    ref[5] = 0x12345678u;
    QCOMPARE(QNodrixCom::palettePlaneDefault().at(5), 0x12345678u);
    ref.resize(10);
    QNodrixCom::initPalettePlaneDefault();
    QCOMPARE(QNodrixCom::palettePlaneDefault(), first);
    ref.resize(1000);
    QNodrixCom::initPalettePlaneDefault();
    QCOMPARE(QNodrixCom::palettePlaneDefault(), first);
}

void tst_QNodrixCom_Languages::namesEmptyBeforeInit()
{
    for (const QString &name : planeNames())
        QCOMPARE(name, QString());
    QVERIFY(LanguageMembers::m_slModuleOperation.isEmpty());
    QVERIFY(LanguageMembers::m_slFili.isEmpty());
    for (int i : {0, 1, 3, 8, -1})
        QCOMPARE(operation(i), QString());
    for (int i : {0, 1, 3, -1})
        QCOMPARE(QNodrixCom::stringFili(i), QString());
}

void tst_QNodrixCom_Languages::translatableStrings()
{
    // Every text goes through the translators installed at the time of the
    // call, in the context "QNodrixCom", with exactly these source texts.
    RecordingTranslator translator;
    QVERIFY(QCoreApplication::installTranslator(&translator));
    translator.asked.clear(); // the application asks for its layout direction
    QNodrixCom::intTranslatableStrings();
    QCoreApplication::removeTranslator(&translator);

    QCOMPARE(translator.asked, withContext(planeTexts + operationTexts + filiTexts));
    QCOMPARE(planeNames(), withContext(planeTexts));
    QCOMPARE(LanguageMembers::m_slModuleOperation, withContext(operationTexts));
    QCOMPARE(LanguageMembers::m_slFili, withContext(filiTexts));
}

void tst_QNodrixCom_Languages::moduleAssocOperation_data()
{
    QTest::addColumn<int>("operation");
    QTest::addColumn<QString>("text");
    for (int i = 0; i < operationTexts.size(); ++i)
        QTest::addRow("%d", i) << i << QStringLiteral("QNodrixCom|") + operationTexts.at(i);
    QTest::newRow("eModuleAssoc_ReplaceGdf")
        << int(QNodrixCom::eModuleAssoc_ReplaceGdf) << QStringLiteral("QNodrixCom|Sostituisci GDF");
    // Outside the list: an empty string instead of a read out of bounds.
    QTest::newRow("9") << 9 << QString();
    QTest::newRow("-1") << -1 << QString();
    QTest::newRow("INT_MAX") << std::numeric_limits<int>::max() << QString();
    QTest::newRow("INT_MIN") << std::numeric_limits<int>::min() << QString();
}

void tst_QNodrixCom_Languages::moduleAssocOperation()
{
    QFETCH(int, operation);
    QFETCH(QString, text);
    QCOMPARE(::operation(operation), text);
}

void tst_QNodrixCom_Languages::stringFili_data()
{
    QTest::addColumn<int>("yarns");
    QTest::addColumn<QString>("text");
    for (int i = 0; i < filiTexts.size(); ++i)
        QTest::addRow("%d", i) << i << QStringLiteral("QNodrixCom|") + filiTexts.at(i);
    QTest::newRow("4") << 4 << QString();
    QTest::newRow("100") << 100 << QString();
    QTest::newRow("-1") << -1 << QString();
    QTest::newRow("INT_MIN") << std::numeric_limits<int>::min() << QString();
}

void tst_QNodrixCom_Languages::stringFili()
{
    QFETCH(int, yarns);
    QFETCH(QString, text);
    QCOMPARE(QNodrixCom::stringFili(yarns), text);
}

void tst_QNodrixCom_Languages::secondCallAppends()
{
    // Without a translator now: the plane names are assigned again, the two
    // lists get a second set behind the first, and the lookups keep
    // answering from the first.
    QNodrixCom::intTranslatableStrings();
    QCOMPARE(planeNames(), planeTexts);
    QCOMPARE(LanguageMembers::m_slModuleOperation.size(), 18);
    QCOMPARE(LanguageMembers::m_slFili.size(), 8);
    QCOMPARE(LanguageMembers::m_slModuleOperation.mid(9), operationTexts);
    QCOMPARE(LanguageMembers::m_slFili.mid(4), filiTexts);
    QCOMPARE(QNodrixCom::stringFili(1), QStringLiteral("QNodrixCom|1 Filo"));
    QCOMPARE(operation(QNodrixCom::eModuleAssoc_Copy), QStringLiteral("QNodrixCom|Copia Pat"));
    // "1 Filo" of the second set sits at 5 now, as the list is read by index.
    QCOMPARE(QNodrixCom::stringFili(5), QStringLiteral("1 Filo"));
    QCOMPARE(QNodrixCom::stringFili(8), QString());
    QCOMPARE(operation(9), QStringLiteral("Inserisci Pat"));
    QCOMPARE(operation(18), QString());
}

NDXCOM_TEST_MAIN(tst_QNodrixCom_Languages)
#include "tst_qnodrixcom_languages.moc"
