// The program with windows, played by keys.
#include "ui/qt/program.h"

#include <gtest/gtest.h>

#include <QInputDialog>
#include <QMessageBox>
#include <QPlainTextEdit>
#include <QTest>
#include <filesystem>
#include <utility>

#include "tests/support/plain_user.h"
#include "tests/ui_qt/companions.h"
#include "tests/ui_qt/player.h"

namespace tasca::test {
namespace {

// A player who opens the program and answers by keys. The default key is Enter.
class ProgramInWindows : public testing::Test {
 protected:
  // The key for a question, which is given by its text or, if that is empty, by its title.
  using Answer = std::function<Qt::Key(const QString& pregunta)>;

  int Play(const Answer& respuesta) {
    Program programa{carpeta_.Path()};
    programa_ = &programa;
    bool abierto = false;
    return PlayUntilEnd([&] {
      if (!std::exchange(abierto, true)) return programa.OpenDlgInicio();
      TakeTurn(respuesta);
    });
  }

  void TakeTurn(const Answer& respuesta) {
    if (QWidget* const caja = QApplication::activeModalWidget()) {
      if (TakesKeys(caja)) AnswerBox(caja, respuesta);
      return;
    }
    if (QWidget* const dlgInicio = VisibleWindow("DlgInicio")) return alInicio_(dlgInicio);
    if (QWidget* const form1 = VisibleWindow("Form1")) return enLaMesa_(form1);
  }

  void AnswerBox(QWidget* caja, const Answer& respuesta) {
    QString pregunta = caja->windowTitle();
    if (const auto* const mensaje = qobject_cast<QMessageBox*>(caja)) {
      if (!mensaje->text().isEmpty()) pregunta = mensaje->text();
    }
    preguntas_ += pregunta;
    Press(caja, respuesta(pregunta));
  }

  int Asked(const char* pregunta) const {
    return static_cast<int>(preguntas_.count(QString::fromUtf8(pregunta)));
  }

  TempFolder carpeta_;
  Program* programa_ = nullptr;  // while Play runs
  QStringList preguntas_;
  std::function<void(QWidget*)> alInicio_ = [](QWidget* ventana) {
    Press(ventana, Qt::Key_Return);
  };
  std::function<void(QWidget*)> enLaMesa_ = [](QWidget* ventana) {
    Press(ventana, Qt::Key_Return);
  };
};

constexpr const char* PartidaCorta = "1\r\n1\r\n1\r\n";
constexpr const char* OtraPartida = "¿Desea jugar otra partida?";
constexpr const char* OtrosJugadores = "¿Desea cambiar de jugadores?";

// Refuses mus and accepts every other default with Enter.
Qt::Key CutAndPass(const QString& pregunta) {
  return pregunta == QStringLiteral("¿mus?") ? Qt::Key_N : Qt::Key_Return;
}

TEST_F(ProgramInWindows, PlaysAMatchByKeysToHastaPronto) {
  SetTable(carpeta_, PartidaCorta);
  const int estado = Play([](const QString& pregunta) {
    return pregunta == QString::fromUtf8(OtraPartida) ? Qt::Key_N : CutAndPass(pregunta);
  });
  EXPECT_EQ(estado, 0);
  EXPECT_EQ(Asked(OtraPartida), 1);
  EXPECT_EQ(Asked(OtrosJugadores), 0);
  EXPECT_GE(Asked("La grande"), 1);
  EXPECT_EQ(preguntas_.constLast(), QString::fromUtf8(OtraPartida));
}

TEST_F(ProgramInWindows, PlaysOnWithTheSamePlayers) {
  SetTable(carpeta_, PartidaCorta);
  int partidas = 0;
  const int estado = Play([&partidas](const QString& pregunta) {
    if (pregunta == QString::fromUtf8(OtrosJugadores)) return Qt::Key_N;
    if (pregunta == QString::fromUtf8(OtraPartida)) return ++partidas < 3 ? Qt::Key_S : Qt::Key_N;
    return CutAndPass(pregunta);
  });
  EXPECT_EQ(estado, 0);
  EXPECT_EQ(Asked(OtrosJugadores), 2);
}

// Always plays another match with other players.
Qt::Key ChangePlayersAlways(const QString& pregunta) {
  const bool alFinal =
      pregunta == QString::fromUtf8(OtraPartida) || pregunta == QString::fromUtf8(OtrosJugadores);
  return alFinal ? Qt::Key_S : CutAndPass(pregunta);
}

TEST_F(ProgramInWindows, ChangesPlayersOnceTheStepHasEnded) {
  SetTable(carpeta_, PartidaCorta);
  int inicios = 0;
  alInicio_ = [&inicios](QWidget* ventana) {
    ++inicios;
    Press(ventana, inicios < 3 ? Qt::Key_Return : Qt::Key_Escape);
  };
  EXPECT_EQ(Play(ChangePlayersAlways), 0);
  EXPECT_EQ(inicios, 3);
  EXPECT_EQ(Asked(OtrosJugadores), 2);
  EXPECT_NE(Utf8(preguntas_.constLast()), OtrosJugadores) << "the box of the vaca follows";
}

TEST_F(ProgramInWindows, ReplacesTheTableByANewStartUpDialog) {
  SetTable(carpeta_, PartidaCorta);
  std::string elegidos;
  alInicio_ = [&elegidos](QWidget* ventana) {
    auto* const combo = Control<QComboBox>(ventana, "Combo1");
    elegidos += Utf8(combo->currentText()) + (VisibleWindow("Form1") != nullptr ? " y mesa|" : "|");
    if (elegidos != "Aleatorio|") return Press(ventana, Qt::Key_Escape);
    combo->setFocus();
    Press(ventana, Qt::Key_End);
    Press(ventana, Qt::Key_Return);
  };
  EXPECT_EQ(Play(ChangePlayersAlways), 0);
  EXPECT_EQ(elegidos, "Aleatorio|Aleatorio|");
}

TEST_F(ProgramInWindows, StartsTheNewMatchWithAnEmptyScoreboard) {
  SetTable(carpeta_, PartidaCorta);
  std::string tanteos;
  bool esNueva = false;
  enLaMesa_ = [&](QWidget* ventana) {
    const std::string tanteo = Utf8(Control<QLineEdit>(ventana, "Text3")->text());
    if (std::exchange(esNueva, false)) tanteos += "[" + tanteo + "]";
    if (tanteos == "[][]") return static_cast<void>(ventana->close());
    Press(ventana, Qt::Key_Return);
  };
  alInicio_ = [&esNueva](QWidget* ventana) {
    esNueva = true;
    Press(ventana, Qt::Key_Return);
  };
  EXPECT_EQ(Play(ChangePlayersAlways), 0);
  EXPECT_EQ(tanteos, "[][]");
}

TEST_F(ProgramInWindows, OpensTheTableMaximisedWithTheTitleOfTheMatch) {
  SetTable(carpeta_);
  std::string comienzo;
  bool maximizada = false;
  enLaMesa_ = [&](QWidget* ventana) {
    comienzo = Utf8(Control<QPlainTextEdit>(ventana, "Text2")->toPlainText().left(17));
    maximizada = ventana->isMaximized();
    ventana->close();
  };
  EXPECT_EQ(Play(CutAndPass), 0);
  EXPECT_EQ(comienzo, "Partida de\nAna y ");
  EXPECT_TRUE(maximizada);
}

TEST_F(ProgramInWindows, AcceptsOnceHoweverOftenAceptarIsPressed) {
  SetTable(carpeta_);
  alInicio_ = [](QWidget* ventana) {
    auto* const aceptar = Control<QPushButton>(ventana, "CbOK");
    auto* const salir = Control<QPushButton>(ventana, "CbCancel");
    aceptar->setFocus();
    for (QPushButton* const boton : {aceptar, aceptar, salir}) {
      QTest::keyClick(boton, Qt::Key_Return);
    }
  };
  bool enLaMesa = false;
  enLaMesa_ = [&enLaMesa](QWidget* ventana) {
    enLaMesa = true;
    ventana->close();
  };
  EXPECT_EQ(Play(CutAndPass), 0);
  EXPECT_TRUE(enLaMesa);
}

TEST_F(ProgramInWindows, EndsWhenTheMainWindowIsClosed) {
  SetTable(carpeta_);
  enLaMesa_ = [](QWidget* ventana) { ventana->close(); };
  EXPECT_EQ(Play(CutAndPass), 0);
  EXPECT_TRUE(preguntas_.isEmpty());
}

TEST_F(ProgramInWindows, EndsWhenTheStartDialogIsLeft) {
  SetTable(carpeta_);
  alInicio_ = [](QWidget* ventana) { ventana->close(); };
  EXPECT_EQ(Play(CutAndPass), 0);
  alInicio_ = [](QWidget* ventana) { Control<QPushButton>(ventana, "CbCancel")->click(); };
  EXPECT_EQ(Play(CutAndPass), 0);
}

TEST_F(ProgramInWindows, FocusesTheInputLineAfterEveryQuestion) {
  SetTable(carpeta_, PartidaCorta);
  enLaMesa_ = [](QWidget* ventana) {
    EXPECT_EQ(Utf8(ventana->focusWidget()->objectName()), "Text1");
    Control<QWidget>(ventana, "Text2")->setFocus();
    Press(ventana, Qt::Key_Return);
  };
  const int estado = Play([](const QString& pregunta) {
    return pregunta == QString::fromUtf8(OtraPartida) ? Qt::Key_N : CutAndPass(pregunta);
  });
  EXPECT_EQ(estado, 0);
}

TEST_F(ProgramInWindows, ShowsTheTranscriptWhileAQuestionWaits) {
  SetTable(carpeta_);
  bool visto = false;
  const int estado = Play([&visto](const QString& pregunta) {
    if (pregunta == QStringLiteral("La grande")) {
      const QWidget* const form1 = VisibleWindow("Form1");
      const auto* const texto = Control<QPlainTextEdit>(form1, "Text2");
      EXPECT_TRUE(texto->toPlainText().startsWith(QStringLiteral("La grande\n")));
      visto = true;
      QCoreApplication::exit(0);
    }
    return CutAndPass(pregunta);
  });
  EXPECT_EQ(estado, 0);
  EXPECT_TRUE(visto);
}

TEST_F(ProgramInWindows, ShowsAllHandsUntilTheNextHand) {
  SetTable(carpeta_);
  QStringList vistas;
  enLaMesa_ = [&vistas](QWidget* ventana) {
    const auto* const text1 = Control<QPlainTextEdit>(ventana, "Text1");
    vistas += text1->toPlainText();
    Press(ventana, Qt::Key_0, Qt::ControlModifier | Qt::ShiftModifier);
    vistas += text1->toPlainText();
    Press(ventana, Qt::Key_Q);
    vistas += text1->toPlainText();
    ventana->close();
  };
  EXPECT_EQ(Play(CutAndPass), 0);
  ASSERT_EQ(vistas.size(), 3);
  EXPECT_EQ(vistas.at(0).count(u'\n'), 0);
  EXPECT_EQ(vistas.at(1).count(u'\n'), 8);
  EXPECT_TRUE(vistas.at(1).startsWith(QStringLiteral("Ana\n") + vistas.at(0)));
  EXPECT_EQ(vistas.at(2).count(u'\n'), 0);
}

constexpr Qt::KeyboardModifiers ParaVerManos = Qt::ControlModifier | Qt::ShiftModifier;

TEST_F(ProgramInWindows, ShowsTheHandsOverTypedText) {
  SetTable(carpeta_);
  enLaMesa_ = [](QWidget* ventana) {
    auto* const text1 = Control<QPlainTextEdit>(ventana, "Text1");
    Press(ventana, Qt::Key_0, ParaVerManos);
    const std::string manos = Utf8(text1->toPlainText());
    Type(text1, "zzz");
    EXPECT_EQ(Utf8(text1->toPlainText()), "zzz" + manos);
    Press(ventana, Qt::Key_0, ParaVerManos);
    EXPECT_EQ(Utf8(text1->toPlainText()), manos);
    ventana->close();
  };
  EXPECT_EQ(Play(CutAndPass), 0);
}

TEST_F(ProgramInWindows, ShowsTheHandOverTypedTextDuringAQuestionAndAfterAStep) {
  SetTable(carpeta_);
  std::string mano;
  int preguntas = 0;
  enLaMesa_ = [&](QWidget* ventana) {
    auto* const text1 = Control<QPlainTextEdit>(ventana, "Text1");
    if (mano.empty()) mano = Utf8(text1->toPlainText());
    EXPECT_EQ(Utf8(text1->toPlainText()), mano);
    if (preguntas > 0) return static_cast<void>(ventana->close());
    Type(text1, "zzz");
    Press(ventana, Qt::Key_Return);
  };
  const int estado = Play([&](const QString& pregunta) {
    const auto* const text1 = Control<QPlainTextEdit>(VisibleWindow("Form1"), "Text1");
    EXPECT_EQ(Utf8(text1->toPlainText()), mano) << Utf8(pregunta);
    ++preguntas;
    return CutAndPass(pregunta);
  });
  EXPECT_EQ(estado, 0);
  EXPECT_GE(preguntas, 1);
}

TEST_F(ProgramInWindows, KeepsTypedTextWhileNoStepRuns) {
  SetTable(carpeta_);
  enLaMesa_ = [](QWidget* ventana) {
    auto* const text1 = Control<QPlainTextEdit>(ventana, "Text1");
    const std::string mano = Utf8(text1->toPlainText());
    Type(text1, "mi mano: ");
    Press(ventana, Qt::Key_0, Qt::ControlModifier);
    Press(ventana, Qt::Key_Left);
    EXPECT_EQ(Utf8(text1->toPlainText()), "mi mano: " + mano);
    ventana->close();
  };
  EXPECT_EQ(Play(CutAndPass), 0);
}

class SessionWithABox : public ProgramInWindows, public testing::WithParamInterface<const char*> {};

TEST_P(SessionWithABox, EndsWhileItIsOpen) {
  SetTable(carpeta_);
  const QLatin1String caja{GetParam()};
  bool estaba = false;
  const int estado = Play([&](const QString& pregunta) {
    if (QApplication::activeModalWidget()->objectName() == caja) {
      EXPECT_FALSE(std::exchange(estaba, true)) << "another question: " << Utf8(pregunta);
      programa_->AtSessionEnd().Comes();
      return Qt::Key_F5;
    }
    const bool mus = caja == QLatin1String{"InputBox"};
    return mus && pregunta == QStringLiteral("¿mus?") ? Qt::Key_S : CutAndPass(pregunta);
  });
  EXPECT_EQ(estado, 0);
  EXPECT_TRUE(estaba);
}

INSTANTIATE_TEST_SUITE_P(Boxes, SessionWithABox, testing::Values("YesNoBox", "Dialog", "InputBox"));

TEST_F(ProgramInWindows, EndsWithTheSessionWhileAnErrorIsShown) {
  const int estado = Play([this](const QString&) {
    programa_->AtSessionEnd().Comes();
    return Qt::Key_F5;
  });
  EXPECT_EQ(estado, 0);
  EXPECT_EQ(preguntas_.size(), 1);
}

TEST_F(ProgramInWindows, EndsWithTheSessionBetweenQuestions) {
  SetTable(carpeta_);
  alInicio_ = [this](QWidget*) { programa_->AtSessionEnd().Comes(); };
  EXPECT_EQ(Play(CutAndPass), 0);
  alInicio_ = [](QWidget* ventana) { Press(ventana, Qt::Key_Return); };
  enLaMesa_ = [this](QWidget*) { programa_->AtSessionEnd().Comes(); };
  EXPECT_EQ(Play(CutAndPass), 0);
  EXPECT_TRUE(preguntas_.isEmpty());
}

TEST_F(ProgramInWindows, AlwaysLetsTheSessionEnd) {
  Program programa{carpeta_.Path()};
  EXPECT_TRUE(programa.AtSessionEnd().MayCome([] {
    ADD_FAILURE() << "asked for interaction";
    return true;
  }));
}

// Without expressions the program ends with an error when the first computer seat speaks, after
// Ana.
TEST_F(ProgramInWindows, ShowsTheTextsWithTheErrorThatEndsTheProgram) {
  SetTable(carpeta_);
  alInicio_ = [](QWidget* ventana) {
    Control<QCheckBox>(ventana, "Check1_1")->click();
    Press(ventana, Qt::Key_Return);
  };
  std::string alAcabar;
  const int estado = Play([&alAcabar](const QString& pregunta) {
    if (pregunta == QStringLiteral("¿mus?")) return Qt::Key_S;
    alAcabar = Utf8(Control<QPlainTextEdit>(VisibleWindow("Form1"), "Text2")->toPlainText());
    return Qt::Key_Return;
  });
  EXPECT_EQ(estado, 1);
  EXPECT_EQ(alAcabar, "Ana: Digo QMus\n");
  EXPECT_TRUE(preguntas_.constLast().contains(QStringLiteral("no tiene nada que decir")));
}

TEST_F(ProgramInWindows, ReportsARunTimeErrorOnceAndEndsWithStatus1) {
  SetTable(carpeta_);
  const int estado = Play([](const QString& pregunta) {
    QWidget* const caja = QApplication::activeModalWidget();
    if (qobject_cast<QInputDialog*>(caja) != nullptr) {
      QTest::keyClicks(caja->focusWidget(), QStringLiteral("99999"));
    } else if (caja->objectName() == QLatin1String{"Dialog"}) {
      Press(caja, Qt::Key_Down);
    }
    return CutAndPass(pregunta);
  });
  EXPECT_EQ(estado, 1);
  EXPECT_EQ(Utf8(preguntas_.constLast()),
            "Desbordamiento: el número no está entre -32768 y 32767. El programa va a terminar su "
            "ejecución.");
}

TEST_F(ProgramInWindows, ReportsAMissingCharacterFileOnce) {
  const int estado = Play(CutAndPass);
  EXPECT_EQ(estado, 1);
  EXPECT_EQ(Utf8(preguntas_.join(u'|')),
            "No se encuentra el archivo con los datos de los personajes. El programa va a terminar "
            "su ejecución.");
}

TEST_F(ProgramInWindows, ReportsADamagedSettingsFileAndKeepsIt) {
  SetTable(carpeta_);
  carpeta_.Write("mus.ini", "35\r\n");
  const int estado = Play(CutAndPass);
  EXPECT_EQ(estado, 1);
  ASSERT_EQ(preguntas_.size(), 1);
  EXPECT_TRUE(preguntas_.constFirst().contains(QStringLiteral("mus.ini")));
  EXPECT_TRUE(
      preguntas_.constFirst().endsWith(QStringLiteral("El programa va a terminar su ejecución.")));
  EXPECT_EQ(carpeta_.Read("mus.ini"), "35\r\n");
}

TEST_F(ProgramInWindows, PlaysWithoutSavingTheNameAndReportsItOnce) {
  SetTable(carpeta_, PartidaCorta);
  const PlainUser usuario{carpeta_};
  std::filesystem::permissions(carpeta_.Path() / "mus.ini", std::filesystem::perms{0444});
  bool otros = false;
  const int estado = Play([&otros](const QString& pregunta) {
    if (pregunta == QString::fromUtf8(OtraPartida) && std::exchange(otros, true)) return Qt::Key_N;
    return pregunta == QString::fromUtf8(OtrosJugadores) ? Qt::Key_S : CutAndPass(pregunta);
  });
  EXPECT_EQ(estado, 0);
  EXPECT_EQ(Utf8(preguntas_.constFirst()),
            "No se ha podido guardar su nombre en mus.ini: no hay permiso para escribir. La "
            "partida se juega igual.");
  EXPECT_EQ(preguntas_.count(preguntas_.constFirst()), 1);
  EXPECT_EQ(Asked(OtrosJugadores), 1);
  EXPECT_EQ(Asked(OtraPartida), 2);
}

TEST_F(ProgramInWindows, WritesAnUneditedNameByteForByte) {
  SetTable(carpeta_);
  carpeta_.Write("mus.ini",
                 "35\r\n3\r\n3\r\nA\x81"
                 "B\tC> anterior\r\n");
  enLaMesa_ = [](QWidget* ventana) { ventana->close(); };
  EXPECT_EQ(Play(CutAndPass), 0);
  const std::string escrito = carpeta_.Read("mus.ini");
  EXPECT_EQ(escrito.find("A\x81"
                         "B\tC> Nombre"),
            std::string{"35\r\n3\r\n3\r\n"}.size())
      << escrito;
}

TEST_F(ProgramInWindows, ReportsAnInvalidChoiceOfCharacters) {
  SetTable(carpeta_);
  int intentos = 0;
  alInicio_ = [&intentos](QWidget* ventana) {
    if (++intentos > 1) return Press(ventana, Qt::Key_Escape);
    for (const char* const nombre : {"Combo1", "Combo2"}) {
      Control<QWidget>(ventana, nombre)->setFocus();
      Press(ventana, Qt::Key_Down);
    }
    Press(ventana, Qt::Key_Return);
  };
  EXPECT_EQ(Play(CutAndPass), 0);
  ASSERT_EQ(preguntas_.size(), 1);
  EXPECT_EQ(Utf8(preguntas_.constFirst()),
            "Si quiere que Berta sea su pareja de juego, no puede ser también su oponente. ¿Lógico "
            "no?");
}

}  // namespace
}  // namespace tasca::test
