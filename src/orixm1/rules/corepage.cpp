#include "corepage.h"

#include "config/optionkeys.h"
#include "config/optiontable.h"
#include "devicerules.h"
#include "dialogdefaults.h"
#include "tcmsizes.h"

namespace TARVOORIXM1
{

namespace
{

// The two size boxes as they follow each other while the page is loaded: every change of a size and
// of where a memory is balances them anew.
class SizeBoxes
{
public:
    explicit SizeBoxes(const QString &device)
        : m_device(device)
    {
        const TcmSizes sizes = tcmSizes(device);
        m_offers.itcm = {sizes.full, sizes.full.indexOf(sizes.defaultSize)};
        m_offers.dtcm = m_offers.itcm;
    }

    void selectItcm(int index) { select(m_offers.itcm, index); }
    void selectDtcm(int index) { select(m_offers.dtcm, index); }
    void setInstructionsOutside() { leave(m_internalInstructions); }
    void setDataOutside() { leave(m_internalData); }

    int itcm() const { return m_offers.itcm.current; }
    int dtcm() const { return m_offers.dtcm.current; }

private:
    void select(TcmOffer &box, int index)
    {
        if (index < 0 || index >= box.sizes.size())
            index = -1;
        if (index == box.current)
            return;
        box.current = index;
        balance();
    }

    void leave(bool &internal)
    {
        if (!internal)
            return;
        internal = false;
        balance();
    }

    void balance()
    {
        const auto text = [](const TcmOffer &box) { return box.sizes.value(box.current); };
        m_offers = balancedTcmSizes(m_device, text(m_offers.itcm), text(m_offers.dtcm),
                                    m_internalInstructions && m_internalData);
    }

    const QString m_device;
    TcmOffers m_offers;
    bool m_internalInstructions = true;
    bool m_internalData = true;
};

} // namespace

OptionMap acceptedCoreOptions(const OptionMap &options, const QString &device)
{
    const auto stored = [&](QLatin1String key) { return dialogValue(options, key, device); };
    OptionMap result;
    const auto copyBool = [&](QLatin1String key) { result.insert(key, stored(key).toBool()); };

    // The buttons that other values select.
    constexpr int otherCount = 8;
    constexpr QLatin1String otherPort = Value::jtag;
    const Option &counts = *findOption(Key::numberOfInterrupts);
    const int count = stored(Key::numberOfInterrupts).toInt();
    const int interrupts = isInDomain(counts, count) ? count : otherCount;
    result.insert(Key::numberOfInterrupts, interrupts);
    copyBool(Key::osExtension);
    copyBool(Key::smallMultiplier);
    copyBool(Key::bigEndian);
    result.insert(Key::externalInterrupts,
                  allowsExternalInterrupts(interrupts) && stored(Key::externalInterrupts).toBool());

    result.insert(Key::enableDebug, isDebugAvailable(device) && stored(Key::enableDebug).toBool());
    const Option &ports = *findOption(Key::debugPortSelect);
    const QString port = stored(Key::debugPortSelect).toString();
    result.insert(Key::debugPortSelect, isInDomain(ports, port) ? port : QString(otherPort));
    copyBool(Key::smallDebug);

    // Of each pair of buttons the inner memory is checked at first and stays so until the outer one
    // is.
    SizeBoxes boxes(device);
    bool instructionsOutside = stored(Key::externalInstructionMemory).toBool();
    if (instructionsOutside)
        boxes.setInstructionsOutside();
    boxes.selectItcm(stored(Key::itcmSize).toInt());
    boxes.selectDtcm(stored(Key::dtcmSize).toInt());
    const bool dataOutside = stored(Key::externalDataMemory).toBool();
    if (dataOutside)
        boxes.setDataOutside();
    if (isInstructionMemoryExternalOnly(device)) {
        instructionsOutside = true;
        boxes.setInstructionsOutside();
    }
    result.insert(Key::internalInstructionMemory, !instructionsOutside);
    result.insert(Key::externalInstructionMemory, instructionsOutside);
    result.insert(Key::itcmSize, boxes.itcm());
    copyBool(Key::initializeItcm);
    result.insert(Key::internalDataMemory, !dataOutside);
    result.insert(Key::externalDataMemory, dataOutside);
    result.insert(Key::dtcmSize, boxes.dtcm());
    return result;
}

} // namespace TARVOORIXM1
