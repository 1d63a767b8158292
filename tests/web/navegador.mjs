// A browser for the tests, and pages that tell what has gone wrong in them.
import assert from 'node:assert/strict';
import { existsSync } from 'node:fs';
import puppeteer from 'puppeteer-core';

// Milliseconds that a page may take for what the test waits for.
export const Limite = 60000;

const Programas = { chrome: '/usr/bin/chromium', firefox: '/usr/bin/firefox-esr' };

// Which browser the tests run in: TASCA_BROWSER, or Chromium.
export const Clase = process.env.TASCA_BROWSER ?? 'chrome';

export function abreNavegador() {
  const executablePath = Programas[Clase];
  assert.ok(existsSync(executablePath), `${executablePath} is not installed`);
  const args = Clase === 'chrome' ? ['--no-sandbox', '--mute-audio'] : [];
  const extraPrefsFirefox = { 'ui.prefersReducedMotion': 1 };
  return puppeteer.launch({ browser: Clase, executablePath, args, extraPrefsFirefox, headless: true });
}

// Stops the clock of the page, whose time seeds the generator.
function paraElReloj([hora, minuto, segundo]) {
  Date.prototype.getHours = () => hora;
  Date.prototype.getMinutes = () => minuto;
  Date.prototype.getSeconds = () => segundo;
}

function apuntaViolaciones() {
  globalThis.violaciones = [];
  addEventListener('securitypolicyviolation', (e) => {
    globalThis.violaciones.push(`${e.violatedDirective}: ${e.blockedURI}`);
  });
}

const emula = (pagina, { oscuro, movimiento }) => pagina.emulateMediaFeatures([
  { name: 'prefers-color-scheme', value: oscuro ? 'dark' : 'light' },
  { name: 'prefers-reduced-motion', value: movimiento ? 'no-preference' : 'reduce' }]);

// A page in a context of its own (or in `contexto`), not yet opened. `faltas` are its errors, what it
// asked of other servers and what its policy has refused.
export async function nuevaPagina(navegador, url, opciones = {}) {
  const { ancho = 1280, alto = 800, tactil = false, reloj = [21, 4, 37] } = opciones;
  const contexto = opciones.contexto ?? await navegador.createBrowserContext();
  const pagina = await contexto.newPage();
  pagina.setDefaultTimeout(Limite);
  const deDedo = tactil ? { hasTouch: true, isMobile: true } : {};
  await pagina.setViewport({ width: ancho, height: alto, ...deDedo });
  if (Clase === 'chrome') await emula(pagina, opciones);
  await pagina.evaluateOnNewDocument(paraElReloj, reloj);
  await pagina.evaluateOnNewDocument(apuntaViolaciones);
  const faltas = [];
  pagina.on('pageerror', (error) => faltas.push(`error: ${error}`));
  pagina.on('console', (m) => { if (m.type() === 'error') faltas.push(`console: ${m.text()}`); });
  pagina.on('request', (p) => {
    const propia = p.url().startsWith(url) || !/^(https?|wss?):/.test(p.url());
    if (!propia) faltas.push(`foreign: ${p.url()}`);
  });
  return { pagina, contexto, faltas };
}

// Opens the page and waits until it asks for something.
export async function abre(navegador, url, opciones) {
  const todo = await nuevaPagina(navegador, url, opciones);
  await todo.pagina.goto(url);
  await espera(todo.pagina, () => document.querySelector('dialog[open]') !== null);
  return todo;
}

// Waits until a condition holds in the page.
export const espera = (pagina, condicion, ...argumentos) =>
  pagina.waitForFunction(condicion, { timeout: Limite }, ...argumentos);

// Nothing went wrong in the page.
export async function sinFaltas({ pagina, faltas }) {
  const violaciones = await pagina.evaluate(() => globalThis.violaciones);
  assert.deepEqual([...faltas, ...violaciones], []);
}
