#pragma once

#include <QDate>

/// The money of the synthetic practice: tariffs, and the bills of its last months to the insurers.
namespace practica
{

/// Services with prices that nobody charges; their names say so.
void addTariffs();

/// A bill a month of the last four for every professional and coverage that has visits: the older ones are
/// collected, the visits of the current month wait to be billed.
void addBills(QDate today);

} // namespace practica
