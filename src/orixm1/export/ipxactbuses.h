#pragma once

#include "format.h"
#include "ipxactdocument.h"

namespace TARVOORIXM1::Ipxact
{

// A bus definition of ours and the abstraction definition that has its signals.
struct Bus {
    QLatin1String name; // "ahb_lite", and "ahb_lite_rtl" of the abstraction
    QLatin1String text;
    bool isAddressable = false;

    Vlnv vlnv() const { return {library(), name}; }
    Vlnv abstraction() const { return {library(), QString(name) + "_rtl"_l1}; }
    // Below the folder of the component.
    QString file() const { return "bus/"_l1 + QString(name) + ".xml"_l1; }
    QString abstractionFile() const { return "bus/"_l1 + QString(name) + "_rtl.xml"_l1; }

private:
    static QString library() { return QStringLiteral("bus"); }
};

Rows<Bus> buses();

extern const Bus &ahbLite;
extern const Bus &apb;
extern const Bus &clock;     // one signal each: CLK,
extern const Bus &reset;     // RESETn,
extern const Bus &interrupt; // IRQ

// Their files, whatever the configuration is.
QVector<ExportedFile> busFiles(Edition edition, const QString &folder);

} // namespace TARVOORIXM1::Ipxact
