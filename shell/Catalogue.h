#pragma once

#include <QList>
#include <QSize>
#include <QString>

namespace ql {

// One button of the main window's catalogue.
struct CatalogueEntry {
    QString button;       // control name
    int page;             // 0 to 2
    QString form;         // the form it opens
    QString title;        // shown in the Description frame
    QString description;
};

struct CataloguePage {
    QString caption;
    QString toolTip;
};

const QList<CataloguePage>& cataloguePages();

// The size of a button's picture.
inline const QSize CataloguePictureSize(132, 96);
// The buttons in their order on the pages.
const QList<CatalogueEntry>& catalogue();

// One entry of the Special Effects menu.
struct EffectMenuEntry {
    QString control;
    QString caption;
    QString form;
    bool unloadFirst;
};

struct EffectSubmenu {
    QString control;
    QString caption;
    QList<EffectMenuEntry> entries;
};

const QList<EffectSubmenu>& effectMenu();

}  // namespace ql
