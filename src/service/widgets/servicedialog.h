#pragma once

#include <QDialog>

/// The window of a service tool: shows another dialog, \a content, and ends with it. It can be closed when
/// the content can.
class ServiceDialog : public QDialog
{
    Q_OBJECT

public:
    /// Takes \a content over.
    ServiceDialog(QDialog *content, QWidget *parent);

    void reject() override;

private:
    QDialog *m_content = nullptr;
};
