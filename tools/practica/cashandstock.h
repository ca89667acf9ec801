#pragma once

#include "names.h"

#include <QDate>

/// The money and the things of the synthetic practice. Prices are invented.
namespace practica
{

/// A year of the cashbook up to today.
void addCash(QDate today, Dice &dice);
/// A few articles of the first professional, with suppliers and half a year of movements; some are running
/// out.
void addStock(QDate today, Dice &dice);

} // namespace practica
