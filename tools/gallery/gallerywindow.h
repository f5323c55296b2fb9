#ifndef NDXCOM_GALLERYWINDOW_H
#define NDXCOM_GALLERYWINDOW_H

#include "gallerycatalogue.h"

#include <QtWidgets/QMainWindow>

QT_BEGIN_NAMESPACE
class QComboBox;
class QLabel;
class QLineEdit;
class QPushButton;
class QTreeWidget;
class QTreeWidgetItem;
QT_END_NAMESPACE

// A searchable tree of every dialog of the library; Show runs the real call.
class GalleryWindow : public QMainWindow
{
    Q_OBJECT

public:
    explicit GalleryWindow(const QVector<GalleryEntry> &entries, QWidget *parent = nullptr);

private:
    void filter(const QString &text);
    void select();
    void showSelected();
    void changeLanguage(int index);

    QVector<GalleryEntry> m_entries;
    QLineEdit *m_search;
    QTreeWidget *m_tree;
    QLabel *m_details;
    QLabel *m_result;
    QPushButton *m_show;
    QComboBox *m_language;
};

#endif // NDXCOM_GALLERYWINDOW_H
