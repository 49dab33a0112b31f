/*
 * Per pixel fragment shader with colour simply set to gl_Color.
 */


void main(void) {
	gl_FragColor = gl_Color;
}
