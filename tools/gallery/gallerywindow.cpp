#include "gallerywindow.h"

#include "toollanguages.h"

#include <QtWidgets/QComboBox>
#include <QtWidgets/QHBoxLayout>
#include <QtWidgets/QHeaderView>
#include <QtWidgets/QLabel>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QMessageBox>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QSplitter>
#include <QtWidgets/QTreeWidget>
#include <QtWidgets/QVBoxLayout>

#include <QtCore/QMap>
#include <QtCore/QMetaEnum>

namespace {
constexpr int EntryRole = Qt::UserRole + 1;

QString resultText(int result)
{
    const QMetaObject &mo = QMessageBox::staticMetaObject;
    const QMetaEnum buttons = mo.enumerator(mo.indexOfEnumerator("StandardButton"));
    const char *key = result > 0 ? buttons.valueToKey(result) : nullptr;
    return key ? QStringLiteral("%1 (%2)").arg(result).arg(QLatin1String(key))
               : QString::number(result);
}
} // namespace

GalleryWindow::GalleryWindow(const QVector<GalleryEntry> &entries, QWidget *parent)
    : QMainWindow(parent)
    , m_entries(entries)
    , m_search(new QLineEdit)
    , m_tree(new QTreeWidget)
    , m_details(new QLabel)
    , m_result(new QLabel)
    , m_show(new QPushButton(QStringLiteral("Show")))
    , m_language(new QComboBox)
{
    setWindowTitle(QStringLiteral("NdxCom gallery"));

    m_search->setPlaceholderText(QStringLiteral("Search families, values, arguments"));
    m_search->setClearButtonEnabled(true);
    m_tree->setHeaderLabels({QStringLiteral("Dialog"), QStringLiteral("Arguments")});
    m_tree->header()->setSectionResizeMode(0, QHeaderView::ResizeToContents);

    QMap<QString, QTreeWidgetItem *> groups;
    for (int i = 0; i < m_entries.size(); ++i) {
        const GalleryEntry &e = m_entries.at(i);
        QTreeWidgetItem *&group = groups[e.group];
        if (!group) {
            group = new QTreeWidgetItem(m_tree, {e.group});
            group->setFlags(Qt::ItemIsEnabled);
        }
        auto *item = new QTreeWidgetItem(group, {e.value, e.arguments});
        item->setData(0, EntryRole, i);
    }

    for (const QString &code : availableLanguages()) {
        m_language->addItem(QStringLiteral("%1 (%2)").arg(languageName(code), code), code);
        if (code == installedLanguage())
            m_language->setCurrentIndex(m_language->count() - 1);
    }

    m_details->setWordWrap(true);
    m_details->setTextInteractionFlags(Qt::TextSelectableByMouse);
    m_show->setEnabled(false);

    auto *left = new QWidget;
    auto *leftLayout = new QVBoxLayout(left);
    leftLayout->addWidget(m_search);
    leftLayout->addWidget(m_tree);

    auto *right = new QWidget;
    auto *rightLayout = new QVBoxLayout(right);
    auto *languageRow = new QHBoxLayout;
    languageRow->addWidget(new QLabel(QStringLiteral("Language:")));
    languageRow->addWidget(m_language, 1);
    rightLayout->addLayout(languageRow);
    rightLayout->addWidget(m_details);
    rightLayout->addWidget(m_show);
    rightLayout->addWidget(m_result);
    rightLayout->addStretch();

    auto *splitter = new QSplitter;
    splitter->addWidget(left);
    splitter->addWidget(right);
    splitter->setStretchFactor(0, 2);
    setCentralWidget(splitter);
    resize(1000, 640);

    connect(m_search, &QLineEdit::textChanged, this, &GalleryWindow::filter);
    connect(m_tree, &QTreeWidget::itemSelectionChanged, this, &GalleryWindow::select);
    connect(m_tree, &QTreeWidget::itemActivated, this, [this] { showSelected(); });
    connect(m_show, &QPushButton::clicked, this, &GalleryWindow::showSelected);
    connect(m_language, QOverload<int>::of(&QComboBox::currentIndexChanged), this,
            &GalleryWindow::changeLanguage);
}

void GalleryWindow::filter(const QString &text)
{
    for (int g = 0; g < m_tree->topLevelItemCount(); ++g) {
        QTreeWidgetItem *group = m_tree->topLevelItem(g);
        const bool groupMatches = group->text(0).contains(text, Qt::CaseInsensitive);
        int visible = 0;
        for (int c = 0; c < group->childCount(); ++c) {
            QTreeWidgetItem *item = group->child(c);
            const bool match = groupMatches || item->text(0).contains(text, Qt::CaseInsensitive)
                || item->text(1).contains(text, Qt::CaseInsensitive);
            item->setHidden(!match);
            visible += match ? 1 : 0;
        }
        group->setHidden(visible == 0);
        group->setExpanded(!text.isEmpty() && visible > 0);
    }
}

void GalleryWindow::select()
{
    const QList<QTreeWidgetItem *> selected = m_tree->selectedItems();
    const QVariant index = selected.isEmpty() ? QVariant() : selected.first()->data(0, EntryRole);
    m_show->setEnabled(index.isValid());
    m_result->clear();
    if (!index.isValid()) {
        m_details->clear();
        return;
    }
    const GalleryEntry &e = m_entries.at(index.toInt());
    m_details->setText(QStringLiteral("<b>%1</b><br>family: %2<br>value: %3<br>arguments: %4")
                           .arg(e.group.toHtmlEscaped(), e.family.toHtmlEscaped(),
                                e.value.toHtmlEscaped(), e.arguments.toHtmlEscaped()));
}

void GalleryWindow::showSelected()
{
    const QList<QTreeWidgetItem *> selected = m_tree->selectedItems();
    if (selected.isEmpty() || !selected.first()->data(0, EntryRole).isValid())
        return;
    const GalleryEntry &e = m_entries.at(selected.first()->data(0, EntryRole).toInt());
    if (e.prepare)
        e.prepare();
    const int result = e.run();
    if (e.cleanup)
        e.cleanup();
    m_result->setText(QStringLiteral("The library returned %1").arg(resultText(result)));
}

void GalleryWindow::changeLanguage(int index)
{
    installLanguage(m_language->itemData(index).toString());
}
