#ifndef NDXCOM_GLOBAL_H
#define NDXCOM_GLOBAL_H

#include <QtCore/QObject>
#include <QtCore/QString>

// Applications of the suite were written for Qt 4 and call trUtf8(). Qt 5
// still declares it in Q_OBJECT; Qt 6 dropped it, so the classes bring it
// back there, forwarding to tr().
#if QT_VERSION >= QT_VERSION_CHECK(6, 0, 0)
#define NDXCOM_TR_FUNCTIONS                                                                        \
public:                                                                                            \
    static inline QString trUtf8(const char *s, const char *c = nullptr, int n = -1)               \
    {                                                                                              \
        return staticMetaObject.tr(s, c, n);                                                       \
    }                                                                                              \
                                                                                                   \
private:
#else
#define NDXCOM_TR_FUNCTIONS
#endif

#endif // NDXCOM_GLOBAL_H
