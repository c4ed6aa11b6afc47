#pragma once

#include <QObject>

class QPalette;

/// Tells whether the operating system shows itself dark, and when that changes.
class SystemScheme : public QObject
{
    Q_OBJECT

public:
    explicit SystemScheme(QObject *parent = nullptr);

    /// False where the system doesn't say.
    static bool isDark();

    /// The judgement by a palette, where there is nothing better: dark behind lighter text.
    static bool isDarkPalette(const QPalette &palette);

    bool eventFilter(QObject *watched, QEvent *event) override;

signals:
    /// Only if it really changed, however often the system speaks of it.
    void changed(bool dark);

private:
    void compare();

    bool m_dark = false;
};
