#pragma once

#include <QByteArray>
#include <QDateTime>
#include <QList>
#include <QObject>
#include <QString>
#include <QStringList>

namespace Workbench
{

// Copies of IP configurations that would be lost otherwise: those that were about to be replaced,
// and drafts, which were in a dialog that was left without OK or is still open.
//
// Each stands in a folder of its own, as a whole file with the name that the configuration has,
// beside "origin.json", which says where it belongs. The oldest go when there are too many.
class KeptConfigurations : public QObject
{
    Q_OBJECT

public:
    static constexpr int limit = 100;
    static constexpr int limitForOneFile = 10;

    enum Kind { Replaced, Dropped };
    struct Item {
        QString id; // the name of its folder
        Kind kind = Replaced;
        QString origin;     // full path of the configuration
        QString copy;       // full path of the copy
        QDateTime time;     // local
        bool isNew = false; // nothing stood at the origin when it was dropped
        QString device;     // in words
        QStringList steps;  // of a draft: what it changes, as its dialog names it

        // "Replaced 21.11.26 18:30", and the device.
        QString description() const;
        // The last steps in a line; empty if none are known.
        QString stepWords() const;
    };

    // The folder is made with the first copy.
    explicit KeptConfigurations(const QString &folder, QObject *parent = nullptr);

    QString folder() const { return m_folder; }

    // Keeps `bytes` as what stood, or would have stood, at `origin`. A copy of the same kind with
    // the same bytes becomes the newest. False and a sentence in `*error` on failure.
    bool keep(Kind kind, const QString &origin, const QByteArray &bytes, QString *error);
    // Keeps a draft in place of the one with that id, which may be empty, and sets the new one's.
    bool keepDraft(const QString &origin, const QByteArray &bytes, const QStringList &steps,
                   QString *id, QString *error);
    // Keeps what stands at the path as replaced; nothing if there is no plain file.
    bool keepFile(const QString &path, QString *error);

    // The newest first, without those that are what stands at their origin.
    QList<Item> items() const;
    // The one that was kept last, by this object.
    Item newest() const { return item(m_newest); }
    // An item with an empty id if there is none.
    Item item(const QString &id) const;
    // Writes the copy to its origin, and keeps what stood there. The copy itself goes.
    bool restore(const QString &id, QString *error);
    void forget(const QString &id);

Q_SIGNALS:
    void changed();

private:
    bool store(Kind kind, const QString &origin, const QByteArray &bytes, const QStringList &steps,
               const QString &replaced, QString *error);
    QList<Item> read() const;
    Item read(const QString &id) const;
    void drop(const QString &id);
    void thinOut();

    QString m_folder;
    QString m_newest;
};

} // namespace Workbench
