// A recorded match, played in the windows and written down as a screen reader tells it: what is
// said of its own accord, the boxes, and the answers. Compared with spoken_match.txt; the text of a
// failing comparison is written to the build folder.
#include <gtest/gtest.h>

#include <QAccessibleInterface>
#include <QLineEdit>
#include <QPushButton>
#include <QTest>
#include <fstream>
#include <sstream>
#include <utility>

#include "match/session.h"
#include "table/dialog.h"
#include "tests/support/temp_folder.h"
#include "tests/traces/game_folder.h"
#include "tests/traces/read_file.h"
#include "tests/ui_qt/ear.h"
#include "tests/ui_qt/player.h"
#include "ui/qt/form1.h"
#include "ui/qt/qt_port.h"
#include "ui/trace/input.h"

namespace tasca::test {
namespace {

const std::filesystem::path Folder{TASCA_SOURCE_DIR};

// The names of the visible parts of a box that have this role.
QStringList NamesOf(const QAccessibleInterface& caja, QAccessible::Role clase) {
  QStringList nombres;
  std::vector<const QAccessibleInterface*> porVer{&caja};
  while (!porVer.empty()) {
    const QAccessibleInterface& parte = *porVer.back();
    porVer.pop_back();
    for (int i = parte.childCount() - 1; i >= 0; --i) porVer.push_back(parte.child(i));
    const QAccessible::State estado = parte.state();
    if (parte.role() != clase || estado.invisible || estado.disabled) continue;
    const QString nombre = parte.text(QAccessible::Name);
    if (!nombre.isEmpty()) nombres += nombre;
  }
  return nombres;
}

std::string Named(const QAccessibleInterface& caja, QAccessible::Role clase) {
  return Utf8(NamesOf(caja, clase).join(QStringLiteral(", ")));
}

std::string InOneLine(std::string texto) {
  for (std::size_t i = 0; (i = texto.find('\n', i)) != std::string::npos;)
    texto.replace(i, 1, " / ");
  return texto;
}

// Writes the match down.
class Script {
 public:
  void Box(QWidget* caja) {
    TakeHeard();
    const QAccessibleInterface& leida = *QAccessible::queryAccessibleInterface(caja);
    Line("cuadro: " + Utf8(leida.text(QAccessible::Name)) + " | " +
         InOneLine(Named(leida, QAccessible::StaticText)) + " | " +
         Named(leida, QAccessible::Button));
  }
  void Answer(const std::string& respuesta) {
    TakeHeard();
    Line("> " + respuesta);
  }
  std::string Text() {
    TakeHeard();
    return texto_;
  }

 private:
  void TakeHeard() {
    for (const std::string& dicho : oido_.TakeHeard()) Line("dice: " + dicho);
  }
  void Line(const std::string& linea) { texto_ += linea + "\n"; }

  Ear oido_;
  std::string texto_;
};

// The answers of the recorded match as keys. The clock is the recorded one.
class RecordedPort : public QtPort {
 public:
  RecordedPort(Input& entrada, Script& guion) : entrada_{entrada}, guion_{guion} {}

  void MsgBox(const Table& t, std::u16string_view texto) override {
    Next("Aceptar", [](QWidget* caja) { Press(caja, Qt::Key_Return); });
    QtPort::MsgBox(t, texto);
  }
  bool YesNoBox(const Table& t, Pregunta sobre, const YesNoQuestion& pregunta) override {
    const bool si = entrada_.AnswerYesNo();
    Next(si ? "Sí" : "No", [si](QWidget* caja) { Press(caja, si ? Qt::Key_S : Qt::Key_N); });
    return QtPort::YesNoBox(t, sobre, pregunta);
  }
  void ShowDialog(const Table& t, Dialog& dialogo) override {
    const int boton = entrada_.AnswerDialog(dialogo);
    const std::string nombre = "Command1_" + std::to_string(boton);
    Next(Utf8(ToQString(dialogo.Command1[boton].Caption)),
         [nombre](QWidget* caja) { Control<QPushButton>(caja, nombre.c_str())->click(); });
    QtPort::ShowDialog(t, dialogo);
  }
  std::u16string InputBox(const Table& t, Pregunta sobre, const InputQuestion& pregunta) override {
    const QString texto = ToQString(entrada_.AnswerText());
    Next(Utf8(texto), [texto](QWidget* caja) {
      caja->findChild<QLineEdit*>()->setText(texto);
      Press(caja, Qt::Key_Return);
    });
    return QtPort::InputBox(t, sobre, pregunta);
  }
  TimeOfDay Now() override { return Reloj; }

  TimeOfDay Reloj{};

 private:
  static QString ToQString(std::u16string_view texto) {
    return QString::fromUtf16(texto.data(), static_cast<qsizetype>(texto.size()));
  }
  void Next(std::string dicha, std::function<void(QWidget*)> respuesta) {
    dicha_ = std::move(dicha);
    respuesta_ = std::move(respuesta);
  }
  void AnswerBox(QWidget* caja) {
    if (!respuesta_) return;
    guion_.Box(caja);
    guion_.Answer(dicha_);
    std::exchange(respuesta_, nullptr)(caja);
  }

  Input& entrada_;
  Script& guion_;
  std::string dicha_;
  std::function<void(QWidget*)> respuesta_;
  BoxAnswerer jugador_{[this](QWidget* caja) { AnswerBox(caja); }};
};

// Plays the recorded match to its end.
class SpokenMatch {
 public:
  explicit SpokenMatch(const std::filesystem::path& partida)
      : linea_{ReadFile(partida / "in.jsonl")}, sesion_{Filled(partida), port_} {}

  std::string Play() {
    StartMatch();
    Form1 form1{
        {.Text1_KeyDown = [this](Integer& tecla, Integer shift) { sesion_.Tecla(tecla, shift); },
         .Sonido_Click = [](bool) {},
         .Closed = [] {}}};
    form1.ShowTable(sesion_.Mesa(), Momento::Reposo);
    form1.show();
    port_.SetMainWindow(&form1);
    EXPECT_TRUE(QTest::qWaitForWindowActive(&form1));
    while (!sesion_.HaAcabado()) {
      const auto jugada = entrada_.NextMove();
      if (!jugada) break;
      if (jugada->Key) TakeStep(form1);
    }
    EXPECT_TRUE(sesion_.HaAcabado()) << "the recorded match has no end";
    return guion_.Text();
  }

 private:
  const std::filesystem::path& Filled(const std::filesystem::path& partida) {
    FillFolder(carpeta_.Path(), partida);
    return carpeta_.Path();
  }

  void StartMatch() {
    const auto elegido = entrada_.NextStart(true);
    ASSERT_TRUE(elegido && elegido->Clock && elegido->Name && elegido->Checks && elegido->Option);
    port_.Reloj = *elegido->Clock;
    ASSERT_EQ(sesion_.AbrirInicio(), Situacion::EnInicio);
    sesion_.EnInicio([&] {
      DlgInicio& d = sesion_.Inicio();
      d.Text2 = *elegido->Name;
      Combo1_Click(d, elegido->Combos.at(0));
      Combo2_Click(d, elegido->Combos.at(1));
      Combo3_Click(d, elegido->Combos.at(2));
      for (int i = 0; i < 2; ++i) {
        Check1_Click(d, i, elegido->Checks->at(static_cast<std::size_t>(i)));
      }
      Option1_Click(d, *elegido->Option);
    });
    ASSERT_EQ(sesion_.Aceptar(), Situacion::EnLaMesa);
  }

  void TakeStep(Form1& form1) {
    guion_.Answer("Enter");
    form1.FocusInput();
    Press(&form1, Qt::Key_Return);
    if (!sesion_.HaAcabado()) form1.ShowTable(sesion_.Mesa(), Momento::Reposo);
  }

  std::istringstream linea_;
  Input entrada_{linea_};
  Script guion_;
  RecordedPort port_{entrada_, guion_};
  TempFolder carpeta_;
  Session sesion_;
};

TEST(SpokenMatch, IsTheRecordedScript) {
  const std::string dicha = SpokenMatch{Folder / "tests/traces/match-lost"}.Play();
  const std::string esperada = ReadFile(Folder / "tests/ui_qt/spoken_match.txt");
  if (dicha == esperada) return;
  std::ofstream{std::filesystem::path{TASCA_PICTURES_DIR} / "spoken_match.txt"} << dicha;
  EXPECT_EQ(dicha, esperada);
}

}  // namespace
}  // namespace tasca::test
