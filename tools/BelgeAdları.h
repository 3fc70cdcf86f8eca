// Names for files that hold an article each.
#pragma once

#include "store/Makale.h"

#include <QHash>
#include <QString>
#include <QStringView>

/// Author and title as far as any file system takes them. No two of one folder are alike, even where a file
/// system makes no difference between letters' cases, or between ı and i.
class BelgeAdları
{
public:
    /// @param uzantı with its full stop
    explicit BelgeAdları(QStringView uzantı) : uzantı_(uzantı.toString()) {}

    QString Ver(const Makale& makale);

private:
    QString uzantı_;
    QHash<QString, int> verilenler_; // how often each was asked for
};
