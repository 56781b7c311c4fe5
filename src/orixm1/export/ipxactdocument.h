#pragma once

#include "vlnv.h"

#include <QByteArray>
#include <QString>
#include <QXmlStreamWriter>

namespace TARVOORIXM1::Ipxact
{

enum class Edition { Year2014, Year2022 };

// An IP-XACT document that is being written.
class Document
{
public:
    Document(Edition edition, QLatin1String root, const Vlnv &vlnv, const QString &description);
    Document(const Document &) = delete;
    Document &operator=(const Document &) = delete;

    bool is2022() const { return m_edition == Edition::Year2022; }
    // The word that an edition has for the side that begins transfers, and for the other one.
    QLatin1String initiator() const { return is2022() ? "initiator"_l1 : "master"_l1; }
    QLatin1String target() const { return is2022() ? "target"_l1 : "slave"_l1; }

    void open(QLatin1String element);
    void close() { m_xml.writeEndElement(); }
    // Of the element that was opened last.
    void attribute(QLatin1String name, const QString &value) { m_xml.writeAttribute(name, value); }
    void characters(const QString &text) { m_xml.writeCharacters(text); }
    void text(QLatin1String element, const QString &value);
    void number(QLatin1String element, int value) { text(element, QString::number(value)); }
    // In the form of the standard's expressions: 'h50004000.
    void hex(QLatin1String element, quint64 value) { text(element, hexText(value)); }
    void emptyElement(QLatin1String element);
    // An element without contents that has one attribute.
    void reference(QLatin1String element, QLatin1String attribute, const QString &value);
    void vlnvReference(QLatin1String element, const Vlnv &vlnv);
    // Without what is not shown; nothing for an empty text.
    void describe(const QString &description);
    void named(const QString &name, const QString &description);
    void range(int left, int right); // "left" and "right"
    void parameter(const QString &name, const QString &value, const QString &description);

    // Ends the document.
    QByteArray bytes();

    static QString hexText(quint64 value);

private:
    QString tagged(QLatin1String element) const { return QString(m_prefix) + element; }

    const Edition m_edition;
    const QLatin1String m_prefix;    // of its elements
    const QString m_lastDescription; // what the edition has at the end
    QByteArray m_bytes;
    QXmlStreamWriter m_xml;
};

// An element for as long as it stands.
class Element
{
public:
    Element(Document &document, QLatin1String name)
        : m_document(document)
    {
        document.open(name);
    }
    ~Element() { m_document.close(); }
    Element(const Element &) = delete;
    Element &operator=(const Element &) = delete;

private:
    Document &m_document;
};

} // namespace TARVOORIXM1::Ipxact
