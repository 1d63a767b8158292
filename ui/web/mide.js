// The function of the page that the module calls: it measures a line of text.
mergeInto(LibraryManager.library, {
  anchoEnLaPagina: function (texto, largo, factor, negrita) {
    const desde = texto >> 1;
    const letras = String.fromCharCode(...HEAPU16.subarray(desde, desde + largo));
    return Module['mide'](letras, factor, negrita !== 0);
  },
});
