// The box in which characters of another file are chosen.
#include "ui/qt/choice_box.h"

#include <gtest/gtest.h>

#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QTest>

#include "tests/ui_qt/nameless.h"
#include "tests/ui_qt/player.h"

namespace tasca::test {
namespace {

const std::vector<Candidato> Tres{
    {.Nombre = u"Berta", .Historia = u"Cuida cabras.", .YaEsta = true},
    {.Nombre = u"", .Historia = u"Nadie lo sabe.", .YaEsta = false},
    {.Nombre = u"<b>Eva & Cía</b>", .Historia = u"", .YaEsta = false}};

// Opens the box and runs the steps on it, one each time that it takes keys.
std::vector<int> Choose(std::vector<std::function<void(QWidget*)>> pasos,
                        const std::vector<int>& elegidos = {}) {
  std::size_t dados = 0;
  const BoxAnswerer jugador{[&](QWidget* caja) {
    if (ButtonIsDown(caja) || dados >= pasos.size()) return;
    pasos.at(dados++)(caja);
  }};
  std::vector<int> respuesta = ChooseCharacters(nullptr, Tres, elegidos);
  EXPECT_EQ(dados, pasos.size()) << "closed before the last step";
  return respuesta;
}

std::function<void(QWidget*)> KeysOn(std::vector<Qt::Key> teclas) {
  return [teclas = std::move(teclas)](QWidget* caja) {
    for (const Qt::Key tecla : teclas) Press(caja, tecla);
  };
}

std::function<void(QWidget*)> ClickOn(int fila) {
  return [fila](QWidget* caja) {
    const auto* const lista = Control<QListWidget>(caja, "Candidatos");
    QTest::mouseClick(lista->viewport(), Qt::LeftButton, Qt::NoModifier,
                      lista->visualItemRect(lista->item(fila)).center());
  };
}

// What the entries of the list have for this role.
std::vector<std::string> Shown(Qt::ItemDataRole papel) {
  std::vector<std::string> textos;
  const auto mirar = [&](QWidget* caja) {
    const auto* const lista = Control<QListWidget>(caja, "Candidatos");
    for (int i = 0; i < lista->count(); ++i) {
      textos.push_back(Utf8(lista->item(i)->data(papel).toString()));
    }
    Press(caja, Qt::Key_Escape);
  };
  EXPECT_EQ(Choose({mirar}), std::vector<int>{});
  return textos;
}

TEST(ChooseCharacters, ShowsNamesAndStoriesAsPlainText) {
  EXPECT_EQ(Shown(Qt::DisplayRole),
            (std::vector<std::string>{"Berta (ya lo tiene)\nCuida cabras.",
                                      "(sin nombre)\nNadie lo sabe.", "<b>Eva & Cía</b>\n"}));
}

TEST(ChooseCharacters, NamesTheListAndItsEntriesForScreenReaders) {
  EXPECT_EQ(Shown(Qt::AccessibleTextRole).front(), "Berta (ya lo tiene). Cuida cabras.");
  const auto mirar = [](QWidget* caja) {
    EXPECT_EQ(Utf8(Control<QListWidget>(caja, "Candidatos")->accessibleName()),
              "Personajes del archivo");
    EXPECT_EQ(Nameless(caja), std::vector<std::string>{});
    Press(caja, Qt::Key_Escape);
  };
  EXPECT_EQ(Choose({mirar}), std::vector<int>{});
}

TEST(ChooseCharacters, ChoosesSeveralByKeys) {
  EXPECT_EQ(Choose({KeysOn({Qt::Key_Space, Qt::Key_Down, Qt::Key_Down, Qt::Key_Space}),
                    KeysOn({Qt::Key_Return})}),
            (std::vector<int>{0, 2}));
  EXPECT_EQ(Choose({KeysOn({Qt::Key_Space, Qt::Key_Down, Qt::Key_Space, Qt::Key_Up, Qt::Key_Space}),
                    KeysOn({Qt::Key_Return})}),
            (std::vector<int>{1}))
      << "the second press undoes the choice";
}

TEST(ChooseCharacters, ChoosesSeveralByClicks) {
  EXPECT_EQ(Choose({ClickOn(2), ClickOn(1), ClickOn(0), ClickOn(1),
                    [](QWidget* caja) {
                      QTest::mouseClick(Control<QPushButton>(caja, "Traer"), Qt::LeftButton);
                    }}),
            (std::vector<int>{0, 2}));
}

TEST(ChooseCharacters, ChoosesAllByTheirButton) {
  EXPECT_EQ(Choose({[](QWidget* caja) { Press(caja, Qt::Key_E, Qt::AltModifier); },
                    [](QWidget* caja) { Press(caja, Qt::Key_T, Qt::AltModifier); }}),
            (std::vector<int>{0, 1, 2}));
}

TEST(ChooseCharacters, TakesNoAnswerWithoutAChoice) {
  EXPECT_EQ(Choose({KeysOn({Qt::Key_Return}),
                    [](QWidget* caja) {
                      EXPECT_FALSE(Control<QPushButton>(caja, "Traer")->isEnabled());
                      Press(caja, Qt::Key_Space);
                      EXPECT_TRUE(Control<QPushButton>(caja, "Traer")->isEnabled());
                    },
                    KeysOn({Qt::Key_Return})}),
            (std::vector<int>{0}));
}

TEST(ChooseCharacters, StartsWithAnEarlierChoiceAndForgetsItIfCancelled) {
  EXPECT_EQ(Choose({KeysOn({Qt::Key_Return})}, {1, 2}), (std::vector<int>{1, 2}));
  EXPECT_EQ(Choose({KeysOn({Qt::Key_Escape})}, {1, 2}), std::vector<int>{});
}

}  // namespace
}  // namespace tasca::test
