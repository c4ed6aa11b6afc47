#pragma once

#include <QAbstractButton>
#include <QApplication>
#include <QMessageBox>
#include <QTimer>

#include <functional>
#include <memory>

/// The first button that the operator knows by this text or accessible name; nullptr if there is none.
inline QAbstractButton *findButton(const QWidget *parent, const QString &name)
{
    for (QAbstractButton *button : parent->findChildren<QAbstractButton *>()) {
        if (button->text() == name || button->accessibleName() == name)
            return button;
    }
    return nullptr;
}

/// Does \a act to the next modal dialog of this kind while \a context lives.
template <typename Dialog>
void onNext(QObject *context, const std::function<void(Dialog &)> &act)
{
    auto *poll = new QTimer(context);
    QObject::connect(poll, &QTimer::timeout, poll, [poll, act] {
        auto *dialog = qobject_cast<Dialog *>(QApplication::activeModalWidget());
        if (!dialog)
            return;
        poll->stop();
        act(*dialog);
        poll->deleteLater();
    });
    poll->start(0);
}

/// Presses that button of the next message box, or cancels it if there is none, and gives its title and text.
inline std::shared_ptr<QStringList> answerNext(QObject *context, const QString &buttonText)
{
    auto said = std::make_shared<QStringList>();
    onNext<QMessageBox>(context, [said, buttonText](QMessageBox &box) {
        *said = {box.windowTitle(), box.text()};
        QAbstractButton *button = findButton(&box, buttonText);
        button ? button->click() : box.reject();
    });
    return said;
}
