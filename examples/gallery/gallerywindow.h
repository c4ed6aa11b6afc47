#pragma once

#include "gallery/gallerysettings.h"

#include <QStringList>
#include <QWidget>

class QTabWidget;
class QVBoxLayout;

/// Every widget of the kit on a few pages, with a choice of theme and language above them. A change of
/// language builds the pages anew, since texts are translated when they are built.
class GalleryWindow : public QWidget
{
    Q_OBJECT

public:
    explicit GalleryWindow(QWidget *parent = nullptr);

    void setTheme(int theme);
    void setLanguage(const QString &language);

    /// Saves a picture of each page in each theme and language into \a folder; false if that fails.
    bool takePictures(const QString &folder);

private:
    void build();
    QWidget *createBar();
    QTabWidget *createPages();

    GallerySettings m_settings;
    QVBoxLayout *m_layout = nullptr;
    QWidget *m_bar = nullptr;
    QTabWidget *m_pages = nullptr;
};
