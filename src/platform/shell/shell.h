#pragma once

#include <QString>

/// Documents and programs outside this one.
namespace shell
{

/// Opens a file or web address with the system's viewer; false when there is none or it is missing.
bool openDocument(const QString &fileOrAddress);

enum class Tool { NotePad, Calculator, FileExplorer };
/// Starts the helper program of the platform at hand; false when none is installed.
bool start(Tool tool, const QString &argument = {});

/// Whether there is a mail program to hand a message to.
bool canMail();
/// Opens a new message with a file attached in the mail program; it goes out when the person sends it.
/// Without an address the person writes it. False when the mail program cannot be started.
bool mail(const QString &address, const QString &subject, const QString &attachment);

/// True for the first process of this executable on this machine and session that asks; it stays so until
/// the process ends.
bool claimSingleInstance(const QString &name);

} // namespace shell
