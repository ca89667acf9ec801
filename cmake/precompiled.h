// The headers that most sources read, compiled once. Kept to those: a larger image costs each source more to
// load than the rare header costs to read.
#pragma once

#include <QCheckBox>
#include <QComboBox>
#include <QDateTime>
#include <QDialog>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPlainTextEdit>
#include <QPointer>
#include <QPushButton>
#include <QRadioButton>
#include <QStringList>
#include <QTabWidget>
#include <QTableView>
#include <QTimer>

#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <vector>
