#pragma once

#include <QIcon>
#include <QString>

namespace ovra::GlobalElements {

// Every button of the kit asks here for its picture, so each resource file is decoded once
// for the whole panel and its pixmaps are shared by all the buttons that show it: the
// same few icons sit on dozens of pages, and decoding them per button cost start-up time
// and memory on the board.
class IconCache
{
public:
    // side > 0: the picture is only ever shown at that size (or smaller), so only that is kept.
    static QIcon Get(const QString &resourcePath, int side = 0);

private:
    static QIcon Decode(const QString &resourcePath, int side);
};

} // namespace ovra::GlobalElements
