// SPDX-License-Identifier: MIT
#pragma once

#include <QDialog>
#include <functional>
#include <map>

#include "console/site/laboratory.h"

class QComboBox;
class QLabel;
class QPlainTextEdit;
class QPushButton;
class QSocketNotifier;
class QTreeWidget;

namespace alertconsole {

/// Starts and stops the laboratory, shows where its devices are and what arrives there, and gives them faults. It may be closed
/// while the laboratory runs, and goes on noting what arrives.
class LaboratoryWindow : public QDialog {
 public:
  /// `start` and `stop` are what their buttons do; ShowState has to follow.
  LaboratoryWindow(site::Laboratory& laboratory, std::function<void()> start, std::function<void()> stop,
                   QWidget* parent);

  /// Shows whether it runs, with all that follows from that.
  void ShowState();

 private:
  QPushButton* MakeButton(const QString& text, std::function<void()> press);
  void MakeDevices();
  void MakeArrivals();
  void LayOut(QLabel* about);
  void LearnFaults();
  void ShowFaults();
  void GiveFault();
  void TakeArrivals();
  void ShowArrival();

  site::Laboratory& laboratory_;
  std::map<QString, QStringList> faults_;  ///< that a device can have
  QLabel* state_;
  QTreeWidget *devices_, *arrivals_;
  QComboBox* fault_;
  QPlainTextEdit* text_;
  QPushButton *start_, *stop_, *close_;
  QSocketNotifier* notifier_ = nullptr;
};

}  // namespace alertconsole
