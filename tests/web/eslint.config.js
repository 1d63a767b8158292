// The rules for the JavaScript of the page and of its tests.
import js from '@eslint/js';

const globals = (nombres) => Object.fromEntries(nombres.split(' ').map((uno) => [uno, 'readonly']));

export default [
  js.configs.recommended,
  {
    languageOptions: {
      ecmaVersion: 2023,
      globals: globals('window document navigator location console setTimeout fetch URL Blob ' +
        'globalThis addEventListener getComputedStyle getSelection matchMedia indexedDB ' +
        'AbortSignal TextEncoder TextDecoder WebAssembly ResizeObserver AudioContext GainNode ' +
        'AudioBufferSourceNode ChannelSplitterNode ChannelMergerNode NodeFilter HTMLElement ' +
        'HTMLInputElement HTMLSelectElement HTMLButtonElement Event KeyboardEvent ' +
        'MutationObserver IDBFactory IDBObjectStore DOMException caches File process Buffer ' +
        'Request'),
    },
    rules: {
      'max-len': ['error', { code: 120, ignoreUrls: true }],
      'max-lines': ['error', 400],
      'max-lines-per-function': ['error', 60],
      'no-restricted-properties': ['error', { property: 'innerHTML' }, { property: 'outerHTML' },
        { property: 'insertAdjacentHTML' }],
      'prefer-const': 'error',
      eqeqeq: 'error',
    },
  },
  { files: ['**/servicio.js'], languageOptions: { sourceType: 'script' } },
];
