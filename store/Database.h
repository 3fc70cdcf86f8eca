// An open library.
#pragma once

#include "store/Recordset.h"

#include <QString>

#include <functional>
#include <memory>

class Bağlantı;

/// Opened by Workspace. Move-only; closed by Close or its destructor, and not before the last of its
/// recordsets.
class Database
{
public:
    explicit Database(std::shared_ptr<Bağlantı> bağlantı) : bağlantı_(std::move(bağlantı)) {}
    Database(Database&&) noexcept = default;
    Database& operator=(Database&&) noexcept = default;

    /// Runs one reading query. A query that begins with SELECT * gives rows that can be changed, any
    /// other a read-only snapshot. Throws Sözdizimi for anything but exactly one SELECT, TabloYok and AlanYok
    /// for unknown names, DosyaBozuk for damage, NesneKapalı after Close.
    Recordset OpenRecordset(const QString& sql) const;

    /// Called during long queries, at most once every 20 ms, until it is replaced; an empty one for none.
    /// It may repaint, but not use this database. The query ends with İşlemDurduruldu when it returns false.
    void İlerlemeAta(std::function<bool()> sürsünMü) const;

    /// Runs the work in one transaction: all that recordsets of this database change in it stands when it
    /// returns, nothing of it when it throws; what it throws comes through. Recordsets that took part in
    /// failed work must not be used again. Throws NesneKapalı after Close, DosyaKullanımda, and DiskDolu when
    /// the disk is full.
    void TekİşlemdeYap(const std::function<void()>& iş) const;

    void Close() { bağlantı_.reset(); }

    /// Used inside store/ only. Throws NesneKapalı after Close.
    Bağlantı& Dosya() const;

private:
    std::shared_ptr<Bağlantı> bağlantı_;
};
