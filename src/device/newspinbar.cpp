#include "device/newspinbar.h"

#include "device/linklog.h"

using namespace Qt::StringLiterals;

namespace {

constexpr auto StatusPrefix = "S,"_L1;

} // namespace

QString NewSpinbar::deviceType() const
{
    return u"Spinbar"_s;
}

QString NewSpinbar::newSerialNumber() const
{
    return drawSerialNumber(u"B4"_s);
}

QString NewSpinbar::greetingReply() const
{
    return u"iamspinbar"_s;
}

void NewSpinbar::onLinkUp()
{
    send(u"sn"_s);
}

void NewSpinbar::onTextMessage(const QString &message)
{
    if (handleIdentity(message))
        return;
    if (message.startsWith(StatusPrefix))
        handleStatus(message);
    else
        qCInfo(lcLink).noquote() << "unparsed msg" << message;
}
