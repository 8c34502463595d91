#pragma once

#include <QBuffer>

// A device that takes the first `capacity` bytes and refuses the rest, as a disk that fills up
// during a write. What it took stays readable through written().
class FailingDevice : public QIODevice {
public:
    explicit FailingDevice(qint64 capacity) : capacity_(capacity) { open(QIODevice::WriteOnly); }
    const QByteArray& written() const { return written_; }

protected:
    qint64 readData(char*, qint64) override { return -1; }
    qint64 writeData(const char* data, qint64 size) override {
        const qint64 room = capacity_ - written_.size();
        if (room <= 0) {
            setErrorString(QStringLiteral("disque plein"));
            return -1;
        }
        const qint64 taken = std::min(room, size);
        written_.append(data, taken);
        return taken;
    }

private:
    qint64 capacity_;
    QByteArray written_;
};
