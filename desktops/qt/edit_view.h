// SPDX-License-Identifier: MIT
#pragma once

#include <QLineEdit>
#include <QPlainTextEdit>

namespace desktops::qt {

/// A selected part in the widget's positions; both the same where there is only a caret.
struct ShownSelection {
  int anchor = 0, caret = 0;
};

/// The two widgets of a text field, seen as one kind. They only show: their native editing never runs.
class EditView {
 public:
  virtual ~EditView() = default;
  virtual QString Shown() const = 0;
  virtual void Show(const QString& text) = 0;
  virtual ShownSelection Selection() const = 0;
  virtual void Select(ShownSelection selection) = 0;
  virtual void RevealCaret() = 0;
  /// The position at a point of the widget that events are told in.
  virtual int PositionAt(const QPoint& point) = 0;
  /// Extends the selection over the word before or after the caret.
  virtual void SelectWord(bool forward) = 0;
  /// Takes a text that is being composed off the screen.
  virtual void EndComposition() = 0;
  virtual void SetMasked(bool masked) = 0;
  virtual void SetReadOnly(bool read_only) = 0;
};

/// Sees a field's events before and after the widget handles them.
class EditEvents {
 public:
  virtual ~EditEvents() = default;
  /// True when the event is done with.
  virtual bool BeforeEvent(QEvent& event) = 0;
  virtual void AfterEvent(QEvent& event) = 0;
};

class LineField : public QLineEdit, public EditView {
 public:
  explicit LineField(QWidget* parent);
  void SetEvents(EditEvents* events) { events_ = events; }

  QString Shown() const override { return text(); }
  void Show(const QString& text) override { setText(text); }
  ShownSelection Selection() const override;
  void Select(ShownSelection selection) override;
  void RevealCaret() override {}
  int PositionAt(const QPoint& point) override { return cursorPositionAt(point); }
  void SelectWord(bool forward) override;
  void EndComposition() override;
  void SetMasked(bool masked) override;
  void SetReadOnly(bool read_only) override { setReadOnly(read_only); }

 protected:
  bool event(QEvent* event) override;

 private:
  EditEvents* events_ = nullptr;
};

class TextField : public QPlainTextEdit, public EditView {
 public:
  explicit TextField(QWidget* parent);
  void SetEvents(EditEvents* events) { events_ = events; }

  QString Shown() const override { return toPlainText(); }
  void Show(const QString& text) override;
  ShownSelection Selection() const override;
  void Select(ShownSelection selection) override;
  void RevealCaret() override { ensureCursorVisible(); }
  int PositionAt(const QPoint& point) override { return cursorForPosition(point).position(); }
  void SelectWord(bool forward) override;
  void EndComposition() override;
  void SetMasked(bool) override {}
  void SetReadOnly(bool read_only) override { setReadOnly(read_only); }

 protected:
  bool event(QEvent* event) override;
  bool viewportEvent(QEvent* event) override;

 private:
  EditEvents* events_ = nullptr;
};

}  // namespace desktops::qt
