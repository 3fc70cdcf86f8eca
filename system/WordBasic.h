// The word processor as an automation object.
#pragma once

#include <QByteArray>
#include <QString>

/// The object "Word.Basic". Collects a document and hands it over when told to show itself.
class WordBasic
{
public:
    /// Whether there is a word processor.
    static bool Kurulu();

    /// @throw ÇalışmaHatası NesneOluşmadı: there is no word processor that could be started
    WordBasic();

    /// Begins a new, empty document.
    void FileNew();
    /// Puts plain text at the document's end.
    void Insert(const QString& metin);
    /// Puts the clipboard's content at the document's end; its formatted text, which must be a whole RTF
    /// document, becomes the document instead. Waits for the owner of the clipboard as long as the toolkit
    /// does (seconds); what it doesn't deliver is not pasted.
    void EditPaste();
    /// Shows the document in a window of the word processor. Throws what BelgeAktar throws.
    void AppShow();

private:
    QString program_;
    QString metin_;
    QByteArray rtf_; // instead of the text when not empty
};
