// Conversion line by line: the manual breaks its paragraphs into lines and nests no lists.
#include "tools/man/roff.h"

#include <algorithm>
#include <cctype>
#include <optional>
#include <utility>
#include <vector>

namespace tasca {
namespace {

using Cells = std::vector<std::string>;

// Escapes for roff: no character of the text is a request or an escape.
std::string Escaped(std::string_view texto) {
  std::string roff;
  for (const char c : texto) {
    if (c == '\\') {
      roff += "\\e";
    } else if (c == '-') {
      roff += "\\-";
    } else {
      roff += c;
    }
  }
  return roff;
}

std::string Guarded(const std::string& roff) {
  return roff.starts_with('.') || roff.starts_with('\'') ? std::string{"\\&"}.append(roff) : roff;
}

// The text of a line with its letters, and of its links only their texts.
class InlineWriter {
 public:
  explicit InlineWriter(std::string_view texto) : texto_{texto} {}

  std::string Write() {
    while (!texto_.empty()) {
      if (!Code() && !Letters("**", "\\fB", negrita_) && !Letters("*", "\\fI", cursiva_) &&
          !LinkStart() && !LinkEnd() && !Take("<br/>")) {
        roff_ += Escaped(texto_.substr(0, 1));
        texto_.remove_prefix(1);
      }
    }
    return std::move(roff_);
  }

 private:
  bool Take(std::string_view signo) {
    if (!texto_.starts_with(signo)) return false;
    texto_.remove_prefix(signo.size());
    return true;
  }

  bool Code() {
    const std::size_t fin = texto_.find('`', 1);
    if (fin == std::string_view::npos || !Take("`")) return false;
    roff_.append("\\fB").append(Escaped(texto_.substr(0, fin - 1))).append("\\fR");
    texto_.remove_prefix(fin);
    return true;
  }

  // A sign that is never closed is only a sign.
  bool Letters(std::string_view signo, std::string_view letra, bool& abierta) {
    const bool cierra = texto_.find(signo, signo.size()) != std::string_view::npos;
    if ((!abierta && !cierra) || !Take(signo)) return false;
    abierta = !abierta;
    roff_ += abierta ? letra : "\\fR";
    return true;
  }

  bool LinkStart() {
    const bool es = texto_.find("](") == texto_.find(']');
    if (enEnlace_ || !es || !Take("[")) return false;
    return enEnlace_ = true;
  }

  bool LinkEnd() {
    if (!enEnlace_ || !Take("](")) return false;
    enEnlace_ = false;
    texto_.remove_prefix(std::min(texto_.find(')') + 1, texto_.size()));
    return true;
  }

  std::string_view texto_;
  std::string roff_;
  bool negrita_ = false;
  bool cursiva_ = false;
  bool enEnlace_ = false;
};

std::string Inline(std::string_view texto) { return InlineWriter{texto}.Write(); }

std::string_view Trimmed(std::string_view texto) {
  while (texto.starts_with(' ')) texto.remove_prefix(1);
  while (texto.ends_with(' ')) texto.remove_suffix(1);
  return texto;
}

// The cells of a line "| a | b |".
Cells CellsOf(std::string_view linea) {
  Cells celdas;
  linea.remove_prefix(1);
  for (std::size_t fin = linea.find('|'); fin != std::string_view::npos; fin = linea.find('|')) {
    celdas.push_back(Inline(Trimmed(linea.substr(0, fin))));
    linea.remove_prefix(fin + 1);
  }
  return celdas;
}

// The number of a line "12. text", with its stop; "" if it is none.
std::string_view NumberAt(std::string_view linea) {
  std::size_t cifras = 0;
  while (cifras < linea.size() && std::isdigit(static_cast<unsigned char>(linea[cifras])) != 0)
    ++cifras;
  const bool es = cifras > 0 && linea.substr(cifras).starts_with(". ");
  return es ? linea.substr(0, cifras + 1) : std::string_view{};
}

class Writer {
 public:
  void Line(std::string_view linea) {
    if (linea.starts_with("```")) return Fence();
    if (codigo_) return Put(Guarded(Escaped(linea)));
    if (linea.starts_with('|')) return Row(linea);
    cabecera_.reset();
    if (linea.starts_with('#')) return Heading(linea);
    if (linea.empty()) return EndBlock();
    Paragraph(linea);
  }

  std::string Take() { return std::move(roff_); }

 private:
  void Put(std::string_view linea) { roff_.append(linea).append("\n"); }

  void Fence() {
    codigo_ = !codigo_;
    Put(codigo_ ? ".PP\n.RS 4\n.nf" : ".fi\n.RE");
    enParrafo_ = false;
  }

  void Heading(std::string_view linea) {
    EndBlock();
    const std::size_t nivel = linea.find_first_not_of('#');
    std::string roff = nivel == 1 ? ".SH \"" : ".SS \"";
    Put(roff.append(Inline(Trimmed(linea.substr(nivel)))).append("\""));
  }

  void EndBlock() {
    if (enCita_) Put(".RE");
    enCita_ = false;
    enParrafo_ = false;
  }

  void Paragraph(std::string_view linea) {
    if (const std::string_view numero = NumberAt(linea); !numero.empty()) {
      Item(numero, linea.substr(numero.size() + 1));
    } else if (linea.starts_with("- ")) {
      Item("\\(bu", linea.substr(2));
    } else if (linea.starts_with("> ")) {
      if (!enCita_) Put(".PP\n.RS 4");
      enCita_ = true;
      Put(Guarded(Inline(linea.substr(2))) + "\n.br");
    } else {
      if (!enParrafo_) Put(".PP");
      enParrafo_ = true;
      Put(Guarded(Inline(Trimmed(linea))));
    }
  }

  void Item(std::string_view marca, std::string_view texto) {
    Put(std::string{".IP "}.append(marca).append(" 4"));
    Put(Guarded(Inline(texto)));
    enParrafo_ = true;
  }

  // The first row holds the names of the columns, the second only lines.
  void Row(std::string_view linea) {
    EndBlock();
    if (linea.starts_with("|-")) return;
    const Cells celdas = CellsOf(linea);
    if (!cabecera_) {
      cabecera_ = celdas;
      return;
    }
    Put(".TP");
    Put(Guarded(celdas.front()));
    std::string resto;
    for (std::size_t i = 1; i < celdas.size(); ++i) {
      if (celdas[i].empty()) continue;
      if (!resto.empty()) resto += "; ";
      const bool nombrada = celdas.size() > 2 && i < cabecera_->size();
      resto += nombrada ? (*cabecera_)[i] + ": " + celdas[i] : celdas[i];
    }
    Put(resto.empty() ? "\\&" : Guarded(resto));
  }

  std::string roff_;
  std::optional<Cells> cabecera_;  // inside a table
  bool codigo_ = false;
  bool enCita_ = false;
  bool enParrafo_ = false;
};

}  // namespace

std::string RoffOf(std::string_view markdown) {
  Writer escritor;
  while (!markdown.empty()) {
    const std::size_t fin = std::min(markdown.find('\n'), markdown.size());
    escritor.Line(markdown.substr(0, fin));
    markdown.remove_prefix(std::min(fin + 1, markdown.size()));
  }
  return escritor.Take();
}

}  // namespace tasca
