#include "ipxactdocument.h"

#include "names.h"

namespace TARVOORIXM1::Ipxact
{

namespace
{

// Definitions of buses have the namespace as the default one: there are readers that look at files
// with the usual prefix only, and take each of those for a component, a catalogue or a design.
QLatin1String prefixFor(QLatin1String root)
{
    return root.endsWith("Definition"_l1) ? QLatin1String() : "ipxact:"_l1;
}

// Whether the description of a document stands at its beginning.
bool isFirst(Edition edition, QLatin1String root)
{
    return edition == Edition::Year2022 || root == "catalog"_l1;
}

} // namespace

Document::Document(Edition edition, QLatin1String root, const Vlnv &vlnv,
                   const QString &description)
    : m_edition(edition)
    , m_prefix(prefixFor(root))
    , m_lastDescription(isFirst(edition, root) ? QString() : description)
    , m_xml(&m_bytes)
{
    const QString space = QString("http://www.accellera.org/XMLSchema/IPXACT/1685-"_l1) +
                          (is2022() ? "2022"_l1 : "2014"_l1);
    m_xml.setAutoFormatting(true);
    m_xml.setAutoFormattingIndent(2);
    m_xml.writeStartDocument();
    open(root);
    m_xml.writeAttribute(m_prefix.isEmpty() ? "xmlns"_l1 : "xmlns:ipxact"_l1, space);
    text("vendor"_l1, vlnv.vendor);
    text("library"_l1, vlnv.library);
    text("name"_l1, vlnv.name);
    text("version"_l1, vlnv.version);
    if (isFirst(edition, root))
        describe(description);
}

void Document::open(QLatin1String element)
{
    m_xml.writeStartElement(tagged(element));
}

void Document::text(QLatin1String element, const QString &value)
{
    m_xml.writeTextElement(tagged(element), value);
}

void Document::emptyElement(QLatin1String element)
{
    m_xml.writeEmptyElement(tagged(element));
}

void Document::reference(QLatin1String element, QLatin1String attribute, const QString &value)
{
    m_xml.writeEmptyElement(tagged(element));
    m_xml.writeAttribute(attribute, value);
}

void Document::vlnvReference(QLatin1String element, const Vlnv &vlnv)
{
    m_xml.writeEmptyElement(tagged(element));
    m_xml.writeAttribute("vendor"_l1, vlnv.vendor);
    m_xml.writeAttribute("library"_l1, vlnv.library);
    m_xml.writeAttribute("name"_l1, vlnv.name);
    m_xml.writeAttribute("version"_l1, vlnv.version);
}

void Document::describe(const QString &description)
{
    const QString line = plainLine(description);
    if (!line.isEmpty())
        text("description"_l1, line);
}

void Document::named(const QString &name, const QString &description)
{
    text("name"_l1, name);
    describe(description);
}

void Document::range(int left, int right)
{
    number("left"_l1, left);
    number("right"_l1, right);
}

void Document::parameter(const QString &name, const QString &value, const QString &description)
{
    const Element parameter(*this, "parameter"_l1);
    attribute("type"_l1, QStringLiteral("int"));
    named(name, description);
    text("value"_l1, value);
}

QByteArray Document::bytes()
{
    describe(m_lastDescription);
    m_xml.writeEndDocument();
    return m_bytes;
}

QString Document::hexText(quint64 value)
{
    return "'h"_l1 + QString::number(value, 16).toUpper();
}

} // namespace TARVOORIXM1::Ipxact
