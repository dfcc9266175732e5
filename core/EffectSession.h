#pragma once

#include <QList>
#include <QPair>
#include <QString>
#include <QStringList>
#include <QVariant>
#include <array>

namespace ql {

// A fixed row of text slots. An index outside the slots is refused: nothing
// is written and nothing is read.
template <int N>
class SlotArray {
public:
    static constexpr int Size = N;
    static constexpr bool valid(int index) { return index >= 0 && index < N; }
    QString at(int index) const { return valid(index) ? slots_[std::size_t(index)] : QString(); }
    bool set(int index, const QString& value)
    {
        if (!valid(index))
            return false;
        slots_[std::size_t(index)] = value;
        return true;
    }
    void erase()
    {
        for (QString& s : slots_)
            s.clear();
    }
    QStringList toList() const { return QStringList(slots_.begin(), slots_.end()); }

private:
    std::array<QString, N> slots_;
};

// The one record of the running effect, shared by the effect forms, the
// Preview wizard and the re-edit entry. Nothing of it is saved.
struct EffectSession {
    QString GeneratedCode;
    qint16 EffectId = 0;
    SlotArray<3> RequiredClasses;
    SlotArray<51> RequiredFiles;
    SlotArray<51> RequiredPaths;
    qint16 ImageSlot = 0;
    qint16 ReEditMode = 0;
    QString ExtractedValue;
    QString ClassPrefix5;
    QString ClassPrefix8;
    qint16 MessageIndex = 0;
    QString PickedFile;
    // A text, or a whole number for a numeric registry value.
    QVariant RegistryValue = QString();
    qint16 PulldownItemMode = 0;

    // The media files the effect names, each with its source path ("" where
    // it is not known), in slot order; empty slots left out.
    QList<QPair<QString, QString>> requiredMedia() const
    {
        QList<QPair<QString, QString>> media;
        for (int i = 0; i < SlotArray<51>::Size; ++i) {
            if (!RequiredFiles.at(i).isEmpty())
                media.append({RequiredFiles.at(i), RequiredPaths.at(i)});
        }
        return media;
    }

    void eraseArrays()
    {
        RequiredFiles.erase();
        RequiredPaths.erase();
        RequiredClasses.erase();
    }
};

}  // namespace ql
