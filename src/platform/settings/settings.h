#pragma once

#include <QString>

/// The per-user, per-workstation store of the program's options: texts by application title, section and
/// key. A missing key reads as the empty text; defaults stand where a key is used.
namespace settings
{

QString getSetting(const QString &application, const QString &section, const QString &key);
void saveSetting(const QString &application, const QString &section, const QString &key,
                 const QString &value);

/// The title under which this program runs ("Sanirell!", "Sanirell! Modulo secretaria"); settings of the
/// two-argument forms are kept under it, so a second installation has its own.
QString applicationTitle();
void setApplicationTitle(const QString &title);

QString getSetting(const QString &section, const QString &key);
void saveSetting(const QString &section, const QString &key, const QString &value);

} // namespace settings
