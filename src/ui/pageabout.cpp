#include "ui/pageabout.h"

#include "ui/aboutappwidget.h"
#include "ui/aboutfacts.h"

#include <QGridLayout>

using namespace Qt::StringLiterals;

namespace {

constexpr int SideMargin = 16;

QDateTime birthday(const QString &date)
{
    return QDateTime::fromString(date, u"yyyy-MM-dd"_s);
}

} // namespace

PageAbout::PageAbout(QWidget *parent)
    : LateWidget(parent)
{
    setContentsMargins({});
    AboutFacts::addresses();
}

void PageAbout::layOut()
{
    auto *layout = new QGridLayout(this);
    layout->setContentsMargins(SideMargin, 0, SideMargin, 0);
    const QStringList links{u"https://primerov-lab.example"_s, u"https://primerov-lab.example/spinbar"_s};
    const QMap<QString, QDateTime> developers{
        {tr("Анна Образцова"), birthday(u"2000-02-18"_s)}, {tr("Елена Шаблонова"), birthday(u"2000-04-07"_s)},
        {tr("Иван Примеров"), birthday(u"2000-06-23"_s)},  {tr("Мария Условная"), birthday(u"2000-08-30"_s)},
        {tr("Олег Тестов"), birthday(u"2000-10-11"_s)},    {tr("Пётр Вымыслов"), birthday(u"2000-12-05"_s)}};
    layout->addWidget(
        new AboutAppWidget(tr("ООО «Лаборатория Примерова»"), links, {}, {}, developers, false, this));
}
