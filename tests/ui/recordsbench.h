#pragma once

#include "ui/pagedatabase.h"
#include "ui/recordstable.h"

#include "buttons.h"
#include "core/spinbarmodel.h"
#include "core/spinbarsettings.h"
#include "files.h"

#include <QDir>
#include <QLabel>
#include <QStackedWidget>
#include <QTemporaryDir>
#include <QTest>

/// A records page over a folder of its own.
class RecordsBench
{
public:
    RecordsBench() { model = std::make_unique<SpinbarModel>(nullptr, data.path()); }

    SpinbarSettings *settings() const { return model->settings(); }
    QString path(const QString &name) const { return model->recordsFolder() + name; }
    QString json(const QString &name) const { return path(name + QStringLiteral("/experiment.json")); }

    /// A file under the records folder, with the folders it needs.
    void write(const QString &name, const QByteArray &content) const
    {
        const QString filePath = path(name);
        QDir().mkpath(filePath.first(filePath.lastIndexOf(u'/')));
        if (!writeFile(filePath, content))
            qFatal("cannot write");
    }

    /// An experiment with \a rows stays of rats.
    void add(const QString &name, int rows = 1, const QString &comment = {}) const
    {
        QByteArray items;
        for (int row = 0; row < rows; ++row)
            items += (row ? "," : "") + QByteArray(R"({"start":1,"end":2,"rotations":3,"rat":true})");
        write(name + QStringLiteral("/experiment.json"),
              R"({"experiment":{"timestamp":1700000000000,"title":"T )" + name.toUtf8() + R"(","comment":")"
                  + comment.toUtf8() + R"(","items":[)" + items + "]}}");
    }

    void open()
    {
        page = std::make_unique<PageDatabase>(nullptr);
        page->resize(1200, 600);
        page->show();
        table = page->findChild<RecordsTable *>();
        table->setFocus();
        if (!QTest::qWaitForWindowActive(page.get()))
            qFatal("no window");
    }

    /// What is in column \a column of the row of an experiment; null if it is not there.
    QTableWidgetItem *cell(const QString &name, int column) const
    {
        for (int row = 0; row < table->rowCount(); ++row) {
            if (table->item(row, column)->data(Qt::UserRole).toString() == json(name))
                return table->item(row, column);
        }
        return nullptr;
    }

    /// Each row as "name|title|comment|N", from the top.
    QStringList rows() const
    {
        QStringList all;
        for (int row = 0; row < table->rowCount(); ++row) {
            QStringList texts;
            for (int column = 0; column < table->columnCount(); ++column)
                texts += table->item(row, column)->text();
            all += texts.join(u'|');
        }
        return all;
    }

    /// 0 without, 1 with one and 2 with several experiments shown.
    int shownPage() const { return page->findChild<QStackedWidget *>()->currentIndex(); }

    void click(const QString &name) const { QTest::mouseClick(findButton(page.get(), name), Qt::LeftButton); }
    std::shared_ptr<QStringList> answerNext(const QString &buttonText) const
    {
        return ::answerNext(page.get(), buttonText);
    }

    QTemporaryDir data;
    std::unique_ptr<SpinbarModel> model;
    std::unique_ptr<PageDatabase> page;
    RecordsTable *table = nullptr;
};
