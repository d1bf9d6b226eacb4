// The bench's window: the advice above, the trailer on the left, what a person does on the right,
// and below what the ECU was told and the line for every other command.
#pragma once

#include <QBoxLayout>
#include <QComboBox>
#include <QFrame>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QScrollArea>
#include <QStringList>
#include <QWidget>
#include <string>
#include <vector>

#include "simulator/bench/bench_socket.h"
#include "simulator/bench/control_panel.h"
#include "simulator/bench/model/bench.h"
#include "simulator/bench/model/ready.h"
#include "simulator/bench/texts.h"
#include "simulator/bench/trailer_picture.h"

namespace lorimet::bench {

class BenchWindow : public QWidget {
 public:
  // socket: the path of the trailer's control socket. start_program: starts the program beside the
  // bench; nothing where there is none.
  BenchWindow(const QString& socket, std::vector<Ready> trailers, const QString& language,
              std::function<void()> start_program = nullptr);
  ~BenchWindow() override;

  // At the right edge of its screen, and so small that the program can be seen beside it.
  void StandBesideTheProgram();
  void ComeForward();
  // As when the person had typed it.
  void Do(const std::string& command);
  const Bench& Model() const { return bench_; }

 protected:
  bool event(QEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;

 private:
  void MakeColumns();
  void Arrange();
  void Fit();
  // Of the requests (0) or the command line (1).
  QSize LeastBelow(int part) const;
  QWidget* MakeHead();
  QWidget* MakeRequests();
  QWidget* MakeCommandLine();
  void Name();
  void Refresh();
  void ShowAdvice(const Advice& advice);
  void ShowRequests();
  QString Line(const ToldLine& told) const;
  void ShowAnswer(const std::string& command, const Answer& answer);
  void Enter();

  Texts texts_;
  Bench bench_;
  std::function<void()> start_program_;
  QGridLayout* grid_ = nullptr;
  QScrollArea* scroll_ = nullptr;
  QVBoxLayout* column_ = nullptr;  // within it
  QWidget* below_ = nullptr;       // the requests and the command line
  QBoxLayout* below_row_ = nullptr;
  bool arranged_ = false;
  bool beside_ = false;
  bool below_picture_ = false;
  QFrame* head_ = nullptr;
  QLabel* waits_ = nullptr;
  QLabel* next_ = nullptr;
  QPushButton* start_ = nullptr;
  QComboBox* language_ = nullptr;
  TrailerPicture* picture_ = nullptr;
  ControlPanel* panel_ = nullptr;
  QListWidget* requests_ = nullptr;
  QLineEdit* command_ = nullptr;
  QLabel* usage_ = nullptr;
  QPlainTextEdit* answers_ = nullptr;
  std::size_t shown_requests_ = 0;
  double shown_until_ = -1;
  QString typed_;  // the command whose answer is to be shown
  BenchSocket socket_;
};

}  // namespace lorimet::bench
