#include "qnodrixcom.h"

#include <QtCore/QVector>

namespace {
struct LibraryVersion
{
    const char *key;
    const unsigned int *version;
    const QString *date;
};
} // namespace

// The lookup order is the order of this table; keys are compared whole and
// case-sensitively.
class QNodrixComVersionTable : public QNodrixCom
{
public:
    static const LibraryVersion *find(const QString &key)
    {
        static const LibraryVersion table[] = {
            {"Nodrix", &m_uNodrixSoftwareVersion, &m_sNodrixDate},
            {"NdxExt", &m_uNdxExtSoftwareVersion, &m_sNdxExtDate},
            {"NdxDoc", &m_uNdxDocSoftwareVersion, &m_sNdxDocDate},
            {"NdxMac", &m_uNdxMacSoftwareVersion, &m_sNdxMacDate},
            {"NdxAut", &m_uNdxAutSoftwareVersion, &m_sNdxAutDate},
            {"NdxCod", &m_uNdxCodSoftwareVersion, &m_sNdxCodDate},
            {"NdxCom", &m_uNdxComSoftwareVersion, &m_sNdxComDate},
            {"NdxImg", &m_uNdxImgSoftwareVersion, &m_sNdxImgDate},
            {"NdxLib", &m_uNdxLibSoftwareVersion, &m_sNdxLibDate},
            {"Tools", &m_uToolsSoftwareVersion, &m_sToolsDate},
        };
        for (const LibraryVersion &entry : table) {
            if (key == QLatin1String(entry.key))
                return &entry;
        }
        return nullptr;
    }
};

unsigned int QNodrixCom::getNdxVersion(QString sLibrary)
{
    const LibraryVersion *entry = QNodrixComVersionTable::find(sLibrary);
    return entry ? *entry->version : 0u;
}

QString QNodrixCom::getNdxDate(QString sLibrary)
{
    const LibraryVersion *entry = QNodrixComVersionTable::find(sLibrary);
    return entry ? *entry->date : QString();
}

unsigned int QNodrixCom::versionMMRNumber(QString sVersion)
{
    const QStringList fields = sVersion.split(QLatin1Char('.'));
    unsigned int word = 0;
    unsigned int k = 0;
    for (auto it = fields.crbegin(); it != fields.crend(); ++it, ++k) {
        // A failed conversion yields 0, which is what a malformed field counts as.
        const unsigned int field = static_cast<unsigned int>(it->toInt(nullptr, 10)) & 0xFFu;
        // A fifth field from the end wraps back onto the lowest byte.
        word |= field << ((8u * k) % 32u);
    }
    return word;
}

int QNodrixCom::compareVersionMMR(QString sFirst, QString sSecond)
{
    const unsigned int first = versionMMRNumber(sFirst);
    const unsigned int second = versionMMRNumber(sSecond);
    if (first == second)
        return 0;
    return first > second ? 1 : -1;
}

void QNodrixCom::setNodrixAppVersion(QString sVersion)
{
    const QStringList fields = sVersion.split(QLatin1Char('.'));
    m_uNodrixAppVersion = 0;
    const int count = qMin(4, int(fields.size()));
    for (int i = 0; i < count; ++i) {
        // Additive and unreduced: a field above 255 carries into the next one,
        // a negative field subtracts (all modulo 2^32).
        const unsigned int field = static_cast<unsigned int>(fields.at(i).toInt(nullptr, 10));
        m_uNodrixAppVersion += field << (8u * unsigned(3 - i));
    }
}

unsigned int QNodrixCom::getNodrixAppVersion()
{
    return m_uNodrixAppVersion;
}

unsigned int QNodrixCom::productSoftwareVersion()
{
    return m_uProductSoftwareVersion;
}

unsigned int QNodrixCom::productSoftwareBuild()
{
    return m_uProductSoftwareBuild;
}

QString QNodrixCom::productSoftwareMMR()
{
    return m_sProductSoftwareMMR;
}

QString QNodrixCom::productSoftwareMMRB()
{
    return m_sProductSoftwareMMRB;
}

QString QNodrixCom::productSoftware()
{
    return m_sProduct_SoftwareVersion;
}

QString QNodrixCom::productDate()
{
    return m_sProductDate;
}

unsigned int QNodrixCom::nodrixSoftwareVersion()
{
    return m_uNodrixSoftwareVersion;
}

QString QNodrixCom::nodrixDate()
{
    return m_sNodrixDate;
}
