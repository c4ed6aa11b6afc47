#include "service/tooloutput.h"

#include <QStringList>

#include <algorithm>
#include <array>

using namespace Qt::StringLiterals;

namespace {

constexpr std::array FailureWords{"invalid", "can't", "failed"};
constexpr qsizetype LongestWord = 7;

} // namespace

void ToolOutput::append(const QByteArray &bytes)
{
    m_totalBytes += bytes.size();
    searchFailure(bytes);
    m_end += bytes.last(std::min<qsizetype>(bytes.size(), MaxShownBytes));
    if (m_end.size() > MaxShownBytes)
        m_end = m_end.last(MaxShownBytes);
}

void ToolOutput::searchFailure(const QByteArray &bytes)
{
    if (m_tellsFailure)
        return;
    const QByteArray text = m_carry + bytes.toLower();
    m_tellsFailure = std::any_of(FailureWords.begin(), FailureWords.end(),
                                 [&text](const char *word) { return text.contains(word); });
    m_carry = text.last(std::min(text.size(), LongestWord - 1));
}

QString ToolOutput::shownText() const
{
    QString text = QString::fromLocal8Bit(m_end);
    text.replace("\r\n"_L1, "\n"_L1).remove(QChar(u'\0'));
    QStringList lines = text.split(u'\n');
    // Progress is drawn over the line that stands there.
    for (QString &line : lines) {
        while (line.endsWith(u'\r'))
            line.chop(1);
        line = line.section(u'\r', -1);
    }
    return lines.join(u'\n');
}
