#pragma once

#include <QHash>
#include <QString>
#include <QVector>
#include <QXmlStreamReader>

// An XML document as a tree.
struct XmlNode {
    QString name; // empty: there is no such element
    QString text; // its own, without that of the elements in it
    QHash<QString, QString> attributes;
    QVector<XmlNode> children;

    bool isNull() const { return name.isEmpty(); }

    // The first element of this name that stands right below.
    XmlNode child(const char *wanted) const
    {
        for (const XmlNode &node : children) {
            if (node.name == QLatin1String(wanted))
                return node;
        }
        return {};
    }
    QString textOf(const char *wanted) const { return child(wanted).text; }

    // The elements of this name below, at any depth, in the order of the document.
    QVector<XmlNode> all(const char *wanted) const
    {
        QVector<XmlNode> found;
        for (const XmlNode &node : children) {
            if (node.name == QLatin1String(wanted))
                found.append(node);
            found += node.all(wanted);
        }
        return found;
    }

    // The element of this kind whose child "name" says so.
    XmlNode named(const char *element, const QString &wanted) const
    {
        const QVector<XmlNode> nodes = all(element);
        for (const XmlNode &node : nodes) {
            if (node.textOf("name") == wanted)
                return node;
        }
        return {};
    }
    XmlNode named(const char *element, const char *wanted) const
    {
        return named(element, QString::fromLatin1(wanted));
    }

    static XmlNode read(QXmlStreamReader &reader)
    {
        XmlNode node;
        node.name = reader.name().toString();
        const QXmlStreamAttributes list = reader.attributes();
        for (const QXmlStreamAttribute &attribute : list)
            node.attributes.insert(attribute.name().toString(), attribute.value().toString());
        while (!reader.atEnd() && !reader.hasError()) {
            reader.readNext();
            if (reader.isEndElement())
                break;
            if (reader.isStartElement())
                node.children.append(read(reader));
            else if (reader.isCharacters())
                node.text += reader.text();
        }
        return node;
    }
};

// The outermost element; none if the document is not well-formed.
inline XmlNode xmlTree(const QByteArray &document)
{
    QXmlStreamReader reader(document);
    reader.readNextStartElement();
    const XmlNode root = XmlNode::read(reader);
    return reader.hasError() ? XmlNode() : root;
}
