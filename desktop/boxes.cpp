#include "desktop/boxes.h"

#include <QApplication>
#include <QInputDialog>
#include <QMessageBox>
#include <QPushButton>

#include "desktop/view/screen.h"

namespace evac::desktop {
namespace {

constexpr std::string_view kOwnTitle = "Пульт оповещения";

QString title_or_own(std::string_view title) {
  return qt(title.empty() ? kOwnTitle : title);
}

}  // namespace

void QtBoxes::message(std::string_view text, std::string_view title) {
  before_box();
  QMessageBox box(QMessageBox::Information, title_or_own(title), qt(text), QMessageBox::Ok,
                  QApplication::activeWindow());
  box.setTextFormat(Qt::PlainText);
  box.exec();
}

bool QtBoxes::ask(std::string_view text, std::string_view title) {
  before_box();
  QMessageBox box(QMessageBox::Question, title_or_own(title), qt(text), QMessageBox::Yes | QMessageBox::No,
                  QApplication::activeWindow());
  box.setTextFormat(Qt::PlainText);
  box.button(QMessageBox::Yes)->setText(QStringLiteral("Да"));
  box.button(QMessageBox::No)->setText(QStringLiteral("Нет"));
  box.setDefaultButton(QMessageBox::No);
  return box.exec() == QMessageBox::Yes;
}

std::string QtBoxes::input(std::string_view prompt, std::string_view title, std::string_view preset) {
  before_box();
  QInputDialog dialog(QApplication::activeWindow());
  dialog.setWindowTitle(title_or_own(title));
  dialog.setLabelText(qt(prompt));
  dialog.setTextValue(qt(preset));
  dialog.setOkButtonText(QStringLiteral("ОК"));
  dialog.setCancelButtonText(QStringLiteral("Отмена"));
  return dialog.exec() == QDialog::Accepted ? plain(dialog.textValue()) : std::string();
}

void show_fault(int number, const std::string& text) {
  QMessageBox box(QMessageBox::Critical, qt(kOwnTitle),
                  QStringLiteral("Ошибка %1:\n\n%2").arg(number).arg(qt(text)), QMessageBox::Ok);
  box.setTextFormat(Qt::PlainText);
  box.exec();
}

}  // namespace evac::desktop
