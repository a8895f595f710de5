// SPDX-License-Identifier: MIT
#include "console/window/laboratory_window.h"

#include <QComboBox>
#include <QDateTime>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QSocketNotifier>
#include <QTreeWidget>
#include <QVBoxLayout>

#include "desktops/qt/texts.h"

namespace alertconsole {
namespace {

using desktops::qt::ToQt;
using site::Json;

constexpr int kWidthInLetters = 100, kHeightInLines = 44;
/// More than a rehearsal needs; the oldest go.
constexpr int kMostArrivals = 1000;

enum Column { kFirst, kSecond, kThird };

struct Device {
  const char *name, *title;
};
constexpr Device kDevices[] = {
    {"mail", "Mail server"},           {"traps", "Receiver of traps"},      {"modem", "Modem on COM1"},
    {"backup-modem", "Modem on COM2"}, {"pager", "Pager terminal on COM3"}, {"printer", "Printer on COM4"}};

QString TitleOf(const QString& name) {
  for (const Device& device : kDevices)
    if (name == device.name) return device.title;
  return name;
}

QString PlaceOf(const Json& places, const char* device) {
  const Json place = places.value(device, Json::object());
  if (place.contains("path")) return ToQt(place["path"].get<std::string>());
  return place.contains("port") ? QString("127.0.0.1:%1").arg(place["port"].get<int>()) : QString();
}

/// The members of a list with commas between them.
QString ValueText(const Json& value) {
  if (value.is_string()) return ToQt(value.get<std::string>()).trimmed();
  QStringList members;
  if (value.is_array() && !value.empty() && value.front().is_string())
    for (const Json& member : value) members << ValueText(member);
  return members.isEmpty() ? ToQt(value.dump()) : members.join(", ");
}

QString LocalTime(const Json& arrival) {
  const QDateTime time = QDateTime::fromString(ToQt(arrival.value("time", "")), Qt::ISODate);
  return time.toLocalTime().toString("HH:mm:ss");
}

/// Whether a member of an arrival tells something of its own. The raw bytes are there for programs.
bool IsDetail(const std::string& name) {
  return name != "time" && name != "device" && name != "what" && name != "raw";
}

/// In one line: "message  from ann@example.org  to ...", without the longer texts.
QString Summary(const Json& arrival) {
  QString summary = ToQt(arrival.value("what", ""));
  for (const auto& [name, value] : arrival.items()) {
    const QString text = ValueText(value);
    if (IsDetail(name) && !text.contains('\n') && !text.isEmpty())
      summary += QString("   %1 %2").arg(ToQt(name), text);
  }
  return summary;
}

QString WholeText(const Json& arrival) {
  QString whole;
  for (const auto& [name, value] : arrival.items()) {
    if (!IsDetail(name)) continue;
    const QString text = ValueText(value);
    if (text.isEmpty()) continue;
    whole += ToQt(name) + (text.contains('\n') ? ":\n" + text + "\n" : ": " + text + "\n");
  }
  return whole;
}

QTreeWidget* MakeTable(QWidget* parent, const QString& name, const QStringList& columns) {
  auto* table = new QTreeWidget(parent);
  table->setAccessibleName(name);
  table->setHeaderLabels(columns);
  table->setRootIsDecorated(false);
  table->setAllColumnsShowFocus(true);
  return table;
}

}  // namespace

LaboratoryWindow::LaboratoryWindow(site::Laboratory& laboratory, std::function<void()> start,
                                   std::function<void()> stop, QWidget* parent)
    : QDialog(parent), laboratory_(laboratory), state_(new QLabel(this)) {
  setWindowTitle(tr("Laboratory"));
  auto* about = new QLabel(
      tr("The laboratory pretends what alerts are sent to: a mail server, a receiver of traps, modems with "
         "pager terminals, and a printer. Start points the first service of each type at it, so that Test "
         "shows the whole way without a device. Stop puts back what the site had; so does the end of the "
         "console."),
      this);
  about->setWordWrap(true);
  state_->setWordWrap(true);
  MakeDevices();  // Tab goes through all in the order in which they are made
  MakeArrivals();
  start_ = MakeButton(tr("&Start"), std::move(start));
  stop_ = MakeButton(tr("S&top"), std::move(stop));
  close_ = MakeButton(tr("Close"), [this] { close(); });
  LayOut(about);
  ShowState();
}

QPushButton* LaboratoryWindow::MakeButton(const QString& text, std::function<void()> press) {
  auto* button = new QPushButton(text, this);
  connect(button, &QPushButton::clicked, this, std::move(press));
  return button;
}

void LaboratoryWindow::MakeDevices() {
  devices_ = MakeTable(this, tr("Devices"), {tr("Device"), tr("Where it is"), tr("Fault")});
  for (const Device& device : kDevices) {
    auto* row = new QTreeWidgetItem(devices_, {tr(device.title)});
    row->setData(kFirst, Qt::UserRole, device.name);
  }
  devices_->setSizeAdjustPolicy(QAbstractScrollArea::AdjustToContents);
  devices_->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
  devices_->setCurrentItem(devices_->topLevelItem(0));
  fault_ = new QComboBox(this);
  fault_->setAccessibleName(tr("Fault of the chosen device"));
  connect(devices_, &QTreeWidget::currentItemChanged, this, [this] { ShowFaults(); });
  connect(fault_, &QComboBox::activated, this, [this] { GiveFault(); });
}

void LaboratoryWindow::MakeArrivals() {
  arrivals_ = MakeTable(this, tr("What arrived"), {tr("Time"), tr("Device"), tr("What arrived")});
  text_ = new QPlainTextEdit(this);
  text_->setAccessibleName(tr("The chosen arrival"));
  text_->setReadOnly(true);
  text_->setTabChangesFocus(true);
  connect(arrivals_, &QTreeWidget::currentItemChanged, this, [this] { ShowArrival(); });
}

void LaboratoryWindow::LayOut(QLabel* about) {
  auto* fault_line = new QFormLayout;
  auto* fault_label = new QLabel(tr("&Fault of the chosen device:"), this);
  fault_label->setBuddy(fault_);
  fault_line->addRow(fault_label, fault_);
  auto* buttons = new QHBoxLayout;
  buttons->addWidget(start_);
  buttons->addWidget(stop_);
  buttons->addStretch();
  buttons->addWidget(close_);
  auto* column = new QVBoxLayout(this);
  column->addWidget(about);
  column->addWidget(state_);
  column->addWidget(devices_);
  column->addLayout(fault_line);
  column->addWidget(arrivals_, 3);
  column->addWidget(text_, 3);
  column->addLayout(buttons);
  const int letter = fontMetrics().averageCharWidth();
  resize(letter * kWidthInLetters, fontMetrics().lineSpacing() * kHeightInLines);
  devices_->setColumnWidth(kFirst, letter * 36);
  devices_->setColumnWidth(kSecond, letter * 22);
  arrivals_->setColumnWidth(kFirst, letter * 12);
  arrivals_->setColumnWidth(kSecond, letter * 22);
}

void LaboratoryWindow::ShowState() {
  site::LaboratoryProcess* process = laboratory_.Process();
  const bool runs = process != nullptr;
  std::vector<std::string> pointed;
  for (const auto& changed : laboratory_.Plan().changes.changed) pointed.push_back(changed.what);
  for (const auto& added : laboratory_.Plan().changes.added) pointed.push_back(added.what);
  const std::vector<std::string>& left_out = laboratory_.Plan().left_out;
  QString state =
      runs ? tr("The laboratory runs. Changed or added for it: %1.").arg(ToQt(site::Listed(pointed)))
           : tr("The laboratory does not run.");
  if (runs && !left_out.empty())
    state += tr(" Not pointed at it, since this machine does not deliver them: %1.")
                 .arg(ToQt(site::Listed(left_out)));
  state_->setText(state);
  start_->setEnabled(!runs);
  stop_->setEnabled(runs);
  (runs ? close_ : start_)->setDefault(true);
  runs ? devices_->setFocus() : start_->setFocus();  // else Enter would press the other of the two
  for (int i = 0; i < devices_->topLevelItemCount(); ++i) {
    QTreeWidgetItem& row = *devices_->topLevelItem(i);
    row.setText(kSecond, runs ? PlaceOf(process->Places(), kDevices[i].name) : QString());
    row.setText(kThird, runs ? tr("none") : QString());
  }
  delete std::exchange(notifier_, nullptr);
  if (runs) {
    notifier_ = new QSocketNotifier(process->Arrivals(), QSocketNotifier::Read, this);
    connect(notifier_, &QSocketNotifier::activated, this, [this] { TakeArrivals(); });
    LearnFaults();
  }
  ShowFaults();
}

// "mail=busy  turns callers away with 421"
void LaboratoryWindow::LearnFaults() {
  faults_.clear();
  for (const QString& line : ToQt(laboratory_.Process()->Ask("faults")).split('\n', Qt::SkipEmptyParts)) {
    const qsizetype equals = line.indexOf('='), space = line.indexOf(' ', equals);
    faults_[line.left(equals)] << line.mid(equals + 1, space - equals - 1) + ": " + line.mid(space).trimmed();
  }
}

void LaboratoryWindow::ShowFaults() {
  const QTreeWidgetItem* row = devices_->currentItem();
  const bool can_have = laboratory_.Runs() && row != nullptr;
  fault_->clear();
  fault_->setEnabled(can_have);
  fault_->addItem(can_have ? tr("none") : tr("start the laboratory and choose a device"));
  if (!can_have) return;
  fault_->addItems(faults_[row->data(kFirst, Qt::UserRole).toString()]);
  for (int i = 0; i < fault_->count(); ++i)
    if (fault_->itemText(i).section(':', 0, 0) == row->text(kThird)) fault_->setCurrentIndex(i);
}

void LaboratoryWindow::GiveFault() {
  QTreeWidgetItem* row = devices_->currentItem();
  if (row == nullptr || !laboratory_.Runs()) return;
  const QString device = row->data(kFirst, Qt::UserRole).toString();
  const QString fault = fault_->currentText().section(':', 0, 0);
  laboratory_.Process()->Ask(("clear " + device).toStdString());
  if (fault_->currentIndex() > 0) laboratory_.Process()->Ask(("fault " + device + "=" + fault).toStdString());
  row->setText(kThird, fault);
}

void LaboratoryWindow::TakeArrivals() {
  if (!laboratory_.Runs()) return;
  for (const Json& arrival : laboratory_.Process()->TakeArrivals()) {
    auto* row = new QTreeWidgetItem(
        arrivals_, {LocalTime(arrival), TitleOf(ToQt(arrival.value("device", ""))), Summary(arrival)});
    row->setData(kFirst, Qt::UserRole, WholeText(arrival));
    arrivals_->setCurrentItem(row);
    if (arrivals_->topLevelItemCount() > kMostArrivals) delete arrivals_->topLevelItem(0);
  }
  if (laboratory_.Process()->HasEnded()) notifier_->setEnabled(false);
}

void LaboratoryWindow::ShowArrival() {
  const QTreeWidgetItem* row = arrivals_->currentItem();
  text_->setPlainText(row != nullptr ? row->data(kFirst, Qt::UserRole).toString() : QString());
}

}  // namespace alertconsole
