#pragma once

#include <QtGlobal>

/// Lets a person write an eye visit of the patient, a new one with id 0, and records it; false when it was
/// not. One that cannot be stored is told and stays open: what was typed is not lost.
bool registrarOftalmo(qint64 numero, qint64 idConsulta);
