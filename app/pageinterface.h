#pragma once

#include <QMetaType>
#include <QString>

namespace ovra {
namespace GlobalElements {

// Page numbers are the indices of the inner stacked widget and travel to the controller
// as "guistate==N", so their values are fixed by the line protocol.
class Pageinterface
{
public:
    enum en_pages : unsigned int {
        StartUp = 0,
        DeviceData = 1,
        Selftest = 2,
        MainMenu = 3,
        MyHitlist = 4,
        Progs = 5,
        Settings = 6,
        Service = 7,
        ServicePIN = 8,
        Lists = 9,
        MyProgs = 10,
        FixProgs = 11,
        LangSelect = 12,
        UnitSelect = 13,
        DateTime = 14,
        DeviceData2 = 15,
        NewProg = 16,
        PlayProg = 17,
        ProcessProg = 18,
        ServiceProgs = 19,
        FailureList = 20,
        DisplayOptions = 21,
        DisplayManufacturer = 22,
        DisplayMaterial = 23,
        USB = 24,
        ChangeProg = 25,
        OvenReady = 26
    };

    static const QString versionInfo;
};

} // namespace GlobalElements
} // namespace ovra

Q_DECLARE_METATYPE(ovra::GlobalElements::Pageinterface::en_pages)
