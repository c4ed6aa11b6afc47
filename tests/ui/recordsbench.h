#pragma once

#include "ui/pagedatabase.h"
#include "ui/recordstable.h"

#include "core/spinbarmodel.h"
#include "core/spinbarsettings.h"

#include <QAbstractButton>
#include <QApplication>
#include <QDir>
#include <QFile>
#include <QLabel>
#include <QMessageBox>
#include <QStackedWidget>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>

#include <memory>

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
        QFile file(filePath);
        if (!file.open(QFile::WriteOnly) || file.write(content) != content.size())
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

    void click(const QString &accessibleName) const
    {
        for (auto *button : page->findChildren<QAbstractButton *>()) {
            if (button->accessibleName() == accessibleName)
                return QTest::mouseClick(button, Qt::LeftButton);
        }
        qFatal("no such button");
    }

    /// Presses that button of the message box that comes up next, and tells what was asked.
    std::shared_ptr<QString> answerNext(const QString &buttonText) const
    {
        auto said = std::make_shared<QString>();
        auto *timer = new QTimer(page.get());
        QObject::connect(timer, &QTimer::timeout, timer, [=] {
            auto *box = qobject_cast<QMessageBox *>(QApplication::activeModalWidget());
            if (!box)
                return;
            timer->stop();
            *said = box->text();
            for (QAbstractButton *button : box->buttons()) {
                if (button->text() == buttonText)
                    return button->click();
            }
            box->reject();
        });
        timer->start(0);
        return said;
    }

    QTemporaryDir data;
    std::unique_ptr<SpinbarModel> model;
    std::unique_ptr<PageDatabase> page;
    RecordsTable *table = nullptr;
};
