#include "formsettings.h"

#include "framework/settings/metadescriptor.h"
#include "framework/settings/widgets/categoryindex.h"
#include "framework/settings/widgets/editorchoice.h"
#include "framework/settings/widgets/propertytext.h"
#include "framework/settings/widgets/suggestions.h"
#include "framework/settings/widgets/visibilityrule.h"

#include <QTest>
#include <QTranslator>

using namespace Qt::StringLiterals;

namespace {

/// Puts every text of the shared context into square brackets.
class Brackets : public QTranslator
{
    Q_OBJECT

public:
    using QTranslator::QTranslator;
    bool isEmpty() const override { return false; }
    QString translate(const char *context, const char *text, const char *, int) const override
    {
        return qstrcmp(context, "Generic") == 0 ? '[' + QString::fromUtf8(text) + ']' : QString();
    }
};

/// A description of which only the fields count.
class BareDescription : public AbstractMetaDescription
{
    Q_OBJECT

public:
    bool isEnum = false;

    QMetaEnum enumerator() override { return {}; }
    bool isEnumType() override { return isEnum; }
    bool setValue(const QVariant &) override { return false; }
    QVariant getValue() override { return {}; }
    void setDefault() override {}
    void valueChangedSlot() override {}
    bool setTextValue(const QString &) override { return false; }
};

class SortingSettings : public NTSettings
{
    Q_OBJECT

    NT_PROPERTY(int, Zeta, 0)
    Q_CLASSINFO("ZetaCategory", "b")
    Q_CLASSINFO("ZetaPriority", "2")
    NT_PROPERTY(int, Beta, 0)
    Q_CLASSINFO("BetaCategory", "b")
    Q_CLASSINFO("BetaDisplayName", "Last")
    NT_PROPERTY(int, Alpha, 0)
    Q_CLASSINFO("AlphaCategory", "b")
    Q_CLASSINFO("AlphaPriority", "2147483647")
    NT_PROPERTY(int, Loose, 0)
    NT_PROPERTY(int, Upper, 0)
    Q_CLASSINFO("UpperCategory", "Z")
    NT_PROPERTY(int, Secret, 0)
    Q_CLASSINFO("SecretNotVisible", "true")
    Q_PROPERTY(int Memory MEMBER m_memory)

public:
    SortingSettings()
        : NTSettings({}, false, nullptr, XML)
    {}

private:
    int m_memory = 0;
};

} // namespace

class TestFormRules : public QObject
{
    Q_OBJECT

private slots:
    void conditions_data()
    {
        QTest::addColumn<QString>("condition");
        QTest::addColumn<QString>("shownFor"); // of the values A to D and the empty one, "-"
        QTest::newRow("equal") << u"A"_s << u"A"_s;
        QTest::newRow("not equal") << u"!A"_s << u"BCD-"_s;
        QTest::newRow("or") << u"A|B"_s << u"AB"_s;
        QTest::newRow("none of both") << u"!A&&!B"_s << u"CD-"_s;
        QTest::newRow("both at once") << u"A&&B"_s << u""_s;
        QTest::newRow("mixed counts as or") << u"A&&B|C"_s << u"ABC"_s;
        QTest::newRow("leading bar is no or") << u"|A&&B"_s << u""_s;
        QTest::newRow("single part behind a bar") << u"|A"_s << u"A"_s;
        QTest::newRow("case counts") << u"a"_s << u""_s;
        QTest::newRow("nothing") << u""_s << u"-"_s;
    }

    void conditions()
    {
        QFETCH(QString, condition);
        QString shown;
        for (const QString &value : {u"A"_s, u"B"_s, u"C"_s, u"D"_s, QString()}) {
            if (VisibilityRule::holds(value, condition))
                shown += value.isEmpty() ? u"-"_s : value;
        }
        QTEST(shown, "shownFor");
    }

    void steps_data()
    {
        QTest::addColumn<QList<double>>("list");
        QTest::addColumn<double>("current");
        QTest::addColumn<int>("steps");
        QTest::addColumn<double>("next");
        const QList<double> list{1, 2, 5};
        QTest::newRow("from one to the next") << list << 2.0 << 1 << 5.0;
        QTest::newRow("from the nearest") << list << 2.4 << -1 << 1.0;
        QTest::newRow("stays at the end") << list << 5.0 << 1 << 5.0;
        QTest::newRow("stays at the start") << list << 1.0 << -10 << 1.0;
        QTest::newRow("too far from all counts as the first") << list << 20.0 << 1 << 2.0;
        QTest::newRow("unsorted, in its own order") << QList<double>{9, 1, 4} << 1.0 << 1 << 4.0;
    }

    void steps()
    {
        QFETCH(QList<double>, list);
        QFETCH(double, current);
        QFETCH(int, steps);
        QTEST(Suggestions::stepped(list, current, steps), "next");
    }

    void listOfSuggestions()
    {
        QCOMPARE(Suggestions::parse(u" 3, x,0.5 ,,1e1"_s), (QList<double>{3, 0.5, 10}));
        QVERIFY(Suggestions::parse({}).isEmpty());
    }

    void editors_data()
    {
        using Kind = EditorChoice::Kind;
        QTest::addColumn<QString>("type");
        QTest::addColumn<QString>("special");
        QTest::addColumn<int>("kind");
        QTest::addColumn<int>("span");
        const auto row = [](const char *type, const char *special, Kind kind, int span = 1) {
            QTest::addRow("%s %s", type, special) << QString::fromLatin1(type) << QString::fromLatin1(special)
                                                  << static_cast<int>(kind) << span;
        };
        row("QString", "pickfile:*.xml", Kind::Special, 2);
        row("QString", "APickFolderB", Kind::Special, 2);
        row("QString", "multilinetext", Kind::Multiline, 2);
        row("int", "SLIDER", Kind::Slider);
        row("int", "Slider:1", Kind::Int);
        row("int", "enumStringList", Kind::EnumStringList);
        row("qstring", "stringlist", Kind::EnumStringList);
        row("int", "StringList", Kind::Int);
        row("QPointF", "range", Kind::Range);
        row("Enum", "", Kind::Enum);
        row("QPoint", "", Kind::Point);
        row("QPointF", "", Kind::Point);
        row("bool", "Other", Kind::Bool);
        row("qint64", "", Kind::Int);
        row("uint", "", Kind::Int);
        row("QDateTime", "", Kind::Date);
        row("float", "", Kind::Double);
        row("double", "", Kind::Double);
        row("QColor", "Alpha", Kind::Color);
        row("QSize", "", Kind::String, 2);
        row("QString", "", Kind::String, 2);
    }

    void editors()
    {
        QFETCH(QString, type);
        QFETCH(QString, special);
        BareDescription description;
        description.type = type;
        description.isEnum = type == "Enum"_L1;
        description.hasSpecialType = !special.isEmpty();
        description.specialType = special;
        const EditorChoice choice = EditorChoice::of(description);
        QTEST(static_cast<int>(choice.kind), "kind");
        QTEST(choice.columnSpan, "span");
    }

    void categoriesAndTheirRowsAreSorted()
    {
        SortingSettings settings;
        CategoryIndex index;
        index.build(*settings.metaDescriptor());
        QCOMPARE(index.categories(), (QStringList{u"Z"_s, u"b"_s, QString()}));
        QVERIFY(index.categories().last().isNull());
        QStringList names;
        for (const AbstractMetaDescription *description : index.descriptions(u"b"_s))
            names << description->name;
        QCOMPARE(names, (QStringList{u"Zeta"_s, u"Alpha"_s, u"Beta"_s}));
        QCOMPARE(index.description(u"Secret"_s), nullptr);
        QCOMPARE(index.description(u"Memory"_s), nullptr);
        QCOMPARE(index.description(u"Loose"_s), settings.getPropertyByName(u"Loose"_s));
    }

    void unitsAreLookedUpWithoutTheirMarks_data()
    {
        QTest::addColumn<QString>("source");
        QTest::addColumn<QString>("shown");
        QTest::newRow("plain") << u"s"_s << u"[s]"_s;
        QTest::newRow("behind a blank") << u" s"_s << u" [s]"_s;
        QTest::newRow("literal") << u"!- s"_s << u" s"_s;
        QTest::newRow("none") << u""_s << u""_s;
    }

    void unitsAreLookedUpWithoutTheirMarks()
    {
        Brackets brackets;
        QCoreApplication::installTranslator(&brackets);
        QFETCH(QString, source);
        QTEST(PropertyText::suffixOrPrefix(source), "shown");
        QCoreApplication::removeTranslator(&brackets);
    }
};

QTEST_MAIN(TestFormRules)
#include "tst_formrules.moc"
