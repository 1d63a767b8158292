// The character editor's program.
#include "ui/qt/editor_program.h"

#include <gtest/gtest.h>

#include <QFileDialog>
#include <QLineEdit>
#include <QMessageBox>
#include <QTest>
#include <utility>

#include "tests/support/tables.h"
#include "tests/ui_qt/companions.h"
#include "tests/ui_qt/player.h"
#include "ui/own_files.h"

namespace tasca::test {
namespace {

class EditorInWindows : public testing::Test {
 protected:
  using Step = std::function<void(QWidget* ventana)>;

  EditorInWindows() { SetTable(carpeta_); }

  // Runs the program and the steps, each with the active window, until the program ends. Returns
  // the exit status.
  int Work(const std::vector<Step>& pasos, const EditorStart& comienzo = {}) {
    EditorProgram programa{carpeta_.Path(), comienzo};
    programa_ = &programa;
    bool abierto = false;
    std::size_t dados = 0;
    const int estado = PlayUntilEnd([&] {
      if (!std::exchange(abierto, true)) return programa.Open();
      QWidget* const caja = QApplication::activeModalWidget();
      QWidget* const ventana = caja != nullptr ? caja : VisibleWindow("Dialog1");
      if (ventana == nullptr || ButtonIsDown(ventana)) return;
      // The offscreen platform does not activate the window again after a box.
      if (!TakesKeys(ventana)) return ventana->activateWindow();
      if (dados < pasos.size()) pasos.at(dados++)(ventana);
    });
    EXPECT_EQ(dados, pasos.size()) << "ended before the last step";
    return estado;
  }

  static Step Alt(Qt::Key tecla) {
    return [tecla](QWidget* ventana) { Press(ventana, tecla, Qt::AltModifier); };
  }
  static Step Key(Qt::Key tecla) {
    return [tecla](QWidget* ventana) { Press(ventana, tecla); };
  }
  // Checks the text of the box and answers it with a key.
  static Step Reads(const char* texto, Qt::Key tecla = Qt::Key_Return) {
    return [texto, tecla](QWidget* ventana) {
      const auto* const caja = qobject_cast<QMessageBox*>(ventana);
      ASSERT_NE(caja, nullptr) << texto;
      EXPECT_EQ(Utf8(caja->text()), texto);
      Press(ventana, tecla);
    };
  }
  static void Close(QWidget* ventana) { ventana->close(); }

  // Asks the program whether the session may end. Its answer must be `puede`; `dejanPreguntar` says
  // whether it may ask the player. The following steps check the question.
  Step SessionMayEnd(bool dejanPreguntar, bool puede) {
    return [this, dejanPreguntar, puede](QWidget*) {
      EXPECT_EQ(programa_->AtSessionEnd().MayCome([=] { return dejanPreguntar; }), puede);
      ++sesiones_;
    };
  }
  Step SessionEnds() {
    return [this](QWidget*) { programa_->AtSessionEnd().Comes(); };
  }

  TempFolder carpeta_;
  EditorProgram* programa_ = nullptr;  // while Work runs
  int sesiones_ = 0;                   // the number of answers about the end of the session
};

constexpr auto SinGuardar =
    "Hay cambios que no se han guardado en el disco. ¿Salir sin guardarlos?";

TEST(PlaceOfFile, IsTheFolderOfTheFileWhichIsLoaded) {
  const EditorPlace sitio = PlaceOfFile("/casa/ana/Amigos.dat");
  EXPECT_EQ(sitio.Folder, "/casa/ana");
  EXPECT_EQ(sitio.Start.File, "Amigos.dat");
  EXPECT_TRUE(sitio.Start.NotSaved.empty());
  EXPECT_TRUE(sitio.Start.News.empty());
}

TEST(PlaceOfFile, CompletesARelativePath) {
  const EditorPlace sitio = PlaceOfFile("Amigos.dat");
  EXPECT_EQ(sitio.Folder, std::filesystem::current_path());
  EXPECT_EQ(sitio.Start.File, "Amigos.dat");
}

TEST(PlaceOfGame, LoadsNothingAndTellsWhatCannotBeSaved) {
  const TempFolder carpeta;
  const EditorPlace sitio = PlaceOfGame({.Files = carpeta.Path(),
                                         .Shipped = {},
                                         .SoundProgram = {},
                                         .NotSaved = u"no hay sitio en el disco"});
  EXPECT_EQ(sitio.Folder, carpeta.Path());
  EXPECT_TRUE(sitio.Start.File.empty());
  EXPECT_EQ(Utf8(sitio.Start.NotSaved), "no hay sitio en el disco");
  EXPECT_TRUE(sitio.Start.News.empty());
}

// An update of the game has laid a new file beside the one that the user has changed.
TEST(PlaceOfGame, TakesTheNewFilesOnce) {
  const TempFolder enviada;
  const TempFolder propia;
  const auto traer = [&](const char* personajes) {
    enviada.Write("Jugadores.dat", personajes);
    enviada.Write("mus.ini", "Ana> Nombre\r\n");
    EXPECT_EQ(Utf8(BringOwnFiles(enviada.Path(), propia.Path())), "");
  };
  traer("uno");
  propia.Write("Jugadores.dat", "otro");
  traer("dos");
  const GameFolder juego{
      .Files = propia.Path(), .Shipped = enviada.Path(), .SoundProgram = {}, .NotSaved = {}};
  EXPECT_EQ(PlaceOfGame(juego).Start.News,
            std::vector<std::filesystem::path>{propia.Path() / "Jugadores.dat.nuevo"});
  EXPECT_TRUE(PlaceOfGame(juego).Start.News.empty());
}

TEST_F(EditorInWindows, LoadsAddsSavesAndEnds) {
  EXPECT_EQ(Work({Alt(Qt::Key_C), Reads("se han cargado 5 jugadores"), Alt(Qt::Key_N),
                  [](QWidget* v) { Type(v->focusWidget(), "Lola"); }, Alt(Qt::Key_U),
                  Alt(Qt::Key_G), Reads("Se han guardado datos de 6 jugadores"), Close}),
            0);
  EXPECT_NE(carpeta_.Read("Jugadores.dat").find("Datos>\r\nLola\r\n"), std::string::npos);
}

TEST_F(EditorInWindows, ShowsTheLoadedCharactersWhileTheBoxIsOpen) {
  EXPECT_EQ(Work({Alt(Qt::Key_C),
                  [](QWidget* caja) {
                    const QWidget* const ventana = VisibleWindow("Dialog1");
                    EXPECT_EQ(Control<QListWidget>(ventana, "List1")->count(), 5);
                    Press(caja, Qt::Key_Return);
                  },
                  Close}),
            0);
}

TEST_F(EditorInWindows, AsksBeforeDiscardingChanges) {
  EXPECT_EQ(Work({Alt(Qt::Key_U), Close, Reads(SinGuardar), Close, Reads(SinGuardar, Qt::Key_S)}),
            0);
  EXPECT_EQ(carpeta_.Names(), (std::vector<std::string>{"Jugadores.dat", "mus.ini"}));
}

TEST_F(EditorInWindows, AsksBeforeTheSessionEndsWithUnsavedChanges) {
  EXPECT_EQ(Work({Alt(Qt::Key_U), SessionMayEnd(true, false), Reads(SinGuardar),
                  SessionMayEnd(true, true), Reads(SinGuardar, Qt::Key_S), SessionEnds()}),
            0);
  EXPECT_EQ(sesiones_, 2);
}

TEST_F(EditorInWindows, LetsTheSessionEndWithoutChangesOrWithoutInteraction) {
  const Step sinPregunta = [](QWidget* ventana) {
    EXPECT_EQ(Utf8(ventana->objectName()), "Dialog1");
  };
  EXPECT_EQ(Work({SessionMayEnd(true, true), sinPregunta, Alt(Qt::Key_U),
                  SessionMayEnd(false, true), sinPregunta, SessionEnds()}),
            0);
  EXPECT_EQ(sesiones_, 2);
}

TEST_F(EditorInWindows, EndsWithTheSessionWhateverBoxIsOpen) {
  EXPECT_EQ(Work({Alt(Qt::Key_C), SessionEnds()}), 0);
  EXPECT_EQ(Work({Alt(Qt::Key_U), Close, SessionEnds()}), 0);
  EXPECT_EQ(Work({Alt(Qt::Key_C), Key(Qt::Key_Return), Alt(Qt::Key_J), Key(Qt::Key_Down),
                  Alt(Qt::Key_M), Key(Qt::Key_F2), SessionEnds()}),
            0);
  EXPECT_EQ(Work({Alt(Qt::Key_U), SessionMayEnd(true, true), SessionEnds()}), 0);
}

TEST_F(EditorInWindows, EndsWithTheSessionWhileAnErrorIsShown) {
  std::filesystem::remove(carpeta_.Path() / "Jugadores.dat");
  EXPECT_EQ(Work({Alt(Qt::Key_C), SessionEnds()}), 0);
}

TEST(EditorProgram, AsksNothingBeforeItsWindowIsOpen) {
  EditorProgram programa{{}};
  EXPECT_TRUE(programa.AtSessionEnd().MayCome([] { return true; }));
}

TEST_F(EditorInWindows, ConfirmsADeletionByOkAndNotByEscape) {
  EXPECT_EQ(
      Work({Alt(Qt::Key_C), Key(Qt::Key_Return), Alt(Qt::Key_J), Key(Qt::Key_Down), Alt(Qt::Key_E),
            Reads("Confirme que desea eliminar el jugador 1. Default indirecto", Qt::Key_Escape),
            Alt(Qt::Key_E), Reads("Confirme que desea eliminar el jugador 1. Default indirecto"),
            Alt(Qt::Key_G), Reads("Se han guardado datos de 4 jugadores"), Close}),
      0);
}

TEST_F(EditorInWindows, ChangesAPhraseThroughItsBox) {
  EXPECT_EQ(
      Work({Alt(Qt::Key_C), Key(Qt::Key_Return), Alt(Qt::Key_J), Key(Qt::Key_Down), Alt(Qt::Key_M),
            Key(Qt::Key_F2), [](QWidget* v) { Type(v->focusWidget(), "venga"); },
            Key(Qt::Key_Return), Alt(Qt::Key_G), Key(Qt::Key_Return), Close}),
      0);
  EXPECT_NE(carpeta_.Read("Jugadores.dat").find("\r\nvenga  "), std::string::npos);
}

TEST_F(EditorInWindows, EndsWithTheMessageOfARunTimeError) {
  std::filesystem::remove(carpeta_.Path() / "Jugadores.dat");
  const std::string mensaje =
      (carpeta_.Path() / "Jugadores.dat").string() +
      ": no se encuentra el archivo. El programa va a terminar su ejecución.";
  EXPECT_EQ(Work({Alt(Qt::Key_C), Reads(mensaje.c_str())}), 1);
}

TEST_F(EditorInWindows, KeepsItsChangesAfterAFailedSave) {
  const std::filesystem::path copia = carpeta_.Path() / "Jugadores.bak";
  std::filesystem::create_directory(copia);
  const std::string mensaje = "No se ha podido escribir el archivo " + copia.string() +
                              ": hay otra cosa en su lugar. Los cambios siguen aquí: puede "
                              "intentarlo otra vez.";
  EXPECT_EQ(Work({Alt(Qt::Key_C), Key(Qt::Key_Return), Alt(Qt::Key_N),
                  [](QWidget* v) { Type(v->focusWidget(), "Lola"); }, Alt(Qt::Key_U),
                  Alt(Qt::Key_G), Reads(mensaje.c_str()), Close, Reads(SinGuardar),
                  [&copia](QWidget* v) {
                    std::filesystem::remove(copia);
                    Press(v, Qt::Key_G, Qt::AltModifier);
                  },
                  Reads("Se han guardado datos de 6 jugadores"), Close}),
            0);
  EXPECT_NE(carpeta_.Read("Jugadores.dat").find("Datos>\r\nLola\r\n"), std::string::npos);
}

TEST_F(EditorInWindows, KeepsTheFileWhenItEndsWithAnError) {
  const std::string antes = carpeta_.Read("Jugadores.dat");
  EXPECT_EQ(
      Work({Alt(Qt::Key_C), Key(Qt::Key_Return), Alt(Qt::Key_M), Key(Qt::Key_F2),
            Reads("El índice está fuera del intervalo. El programa va a terminar su ejecución.")}),
      1);
  EXPECT_EQ(carpeta_.Read("Jugadores.dat"), antes);
}

TEST_F(EditorInWindows, LoadsAndSavesTheGivenFile) {
  std::filesystem::rename(carpeta_.Path() / "Jugadores.dat", carpeta_.Path() / "otros.dat");
  EXPECT_EQ(Work({Reads("se han cargado 5 jugadores"),
                  [](QWidget* v) {
                    EXPECT_EQ(Control<QListWidget>(v, "List1")->count(), 5);
                    Press(v, Qt::Key_N, Qt::AltModifier);
                  },
                  [](QWidget* v) { Type(v->focusWidget(), "Lola"); }, Alt(Qt::Key_U),
                  Alt(Qt::Key_G), Reads("Se han guardado datos de 6 jugadores"), Close},
                 {.File = "otros.dat"}),
            0);
  EXPECT_EQ(carpeta_.Names(), (std::vector<std::string>{"mus.ini", "otros.bak", "otros.dat"}));
  EXPECT_NE(carpeta_.Read("otros.dat").find("Datos>\r\nLola\r\n"), std::string::npos);
}

TEST_F(EditorInWindows, EndsWithoutTheGivenFile) {
  const std::string mensaje =
      (carpeta_.Path() / "nada.dat").string() +
      ": no se encuentra el archivo. El programa va a terminar su ejecución.";
  EXPECT_EQ(Work({Reads(mensaje.c_str())}, {.File = "nada.dat"}), 1);
}

TEST_F(EditorInWindows, TellsOfNewFilesThatLieBesideTheUsersOwn) {
  EXPECT_EQ(
      Work(
          {Reads("Esta versión del juego trae un archivo nuevo. Como usted había cambiado el suyo, "
                 "el suyo se queda como está; el nuevo está a su lado: /a/Jugadores.dat.nuevo"),
           Close},
          {.News = {"/a/Jugadores.dat.nuevo"}}),
      0);
}

TEST_F(EditorInWindows, BringsCharactersOfAFileAndAsksBeforeDiscardingThem) {
  const std::string otro = (carpeta_.Path() / "otro.txt").string();
  carpeta_.Write("otro.txt",
                 "Datos>\r\nBerta\r\n070\r\nEs otra.\r\nDatos>\r\nLola\r\n080\r\nBaila.\r\n");
  const std::string antes = carpeta_.Read("Jugadores.dat");
  EXPECT_EQ(
      Work({Alt(Qt::Key_C), Key(Qt::Key_Return), Alt(Qt::Key_T),
            [&otro](QWidget* v) { Type(Control<QLineEdit>(v, "fileNameEdit"), otro.c_str()); },
            Key(Qt::Key_Return), Alt(Qt::Key_E), Key(Qt::Key_Return),
            Reads("Ya tiene un personaje que se llama Berta. ¿Sustituirlo por el del archivo? Con "
                  "«No» se queda el que tiene; con «Cancelar» no se trae ninguno.",
                  Qt::Key_S),
            Reads("Se han traído 2 personajes. Para conservarlos, pulse «Guardar en disco»."),
            Close, Reads(SinGuardar),
            [&](QWidget* v) {
              EXPECT_EQ(carpeta_.Read("Jugadores.dat"), antes);
              Press(v, Qt::Key_G, Qt::AltModifier);
            },
            Reads("Se han guardado datos de 6 jugadores"), Close}),
      0);
  const std::string despues = carpeta_.Read("Jugadores.dat");
  EXPECT_NE(despues.find("Datos>\r\nBerta\r\n070\r\nEs otra.\r\n"), std::string::npos);
  EXPECT_NE(despues.find("Datos>\r\nLola\r\n080\r\nBaila.\r\n"), std::string::npos);
}

TEST_F(EditorInWindows, GoesOnAfterAFileThatCannotBeUsed) {
  const std::string otro = (carpeta_.Path() / "otro.txt").string();
  const std::string mensaje = otro + ", línea 1: hay una frase antes del primer personaje.";
  carpeta_.Write("otro.txt", "nada\r\n");
  EXPECT_EQ(
      Work({Alt(Qt::Key_C), Key(Qt::Key_Return), Alt(Qt::Key_T),
            [&otro](QWidget* v) { Type(Control<QLineEdit>(v, "fileNameEdit"), otro.c_str()); },
            Key(Qt::Key_Return), Reads(mensaje.c_str()), Alt(Qt::Key_T),
            [](QWidget* v) {
              const auto* const archivos = qobject_cast<QFileDialog*>(v);
              ASSERT_NE(archivos, nullptr);
              EXPECT_TRUE(archivos->testOption(QFileDialog::ReadOnly));
              Press(v, Qt::Key_Escape);
            },
            Close}),
      0);
}

TEST_F(EditorInWindows, RefusesASaveWithTheReason) {
  const std::string antes = carpeta_.Read("Jugadores.dat");
  const std::string mensaje = "No se ha podido escribir el archivo " +
                              (carpeta_.Path() / "Jugadores.dat").string() +
                              ": no hay sitio. Los cambios siguen aquí: puede intentarlo otra vez.";
  EXPECT_EQ(
      Work({Alt(Qt::Key_C), Key(Qt::Key_Return), Alt(Qt::Key_G), Reads(mensaje.c_str()), Close},
           {.NotSaved = u"no hay sitio."}),
      0);
  EXPECT_EQ(carpeta_.Read("Jugadores.dat"), antes);
}

}  // namespace
}  // namespace tasca::test
