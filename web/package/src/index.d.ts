export * from './load.js';
