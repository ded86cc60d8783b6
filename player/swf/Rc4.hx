import flash.utils.ByteArray;

/** RC4, which enciphers and deciphers alike. **/
class Rc4 {
	public static function run(input:ByteArray, key:String):ByteArray {
		var state = [for (i in 0...256) i];
		var j = 0;
		for (i in 0...256) {
			j = (j + state[i] + key.charCodeAt(i % key.length)) & 255;
			swap(state, i, j);
		}
		var output = new ByteArray();
		var a = 0;
		var b = 0;
		for (n in 0...input.length) {
			a = (a + 1) & 255;
			b = (b + state[a]) & 255;
			swap(state, a, b);
			output.writeByte(input[n] ^ state[(state[a] + state[b]) & 255]);
		}
		output.position = 0;
		return output;
	}

	static function swap(state:Array<Int>, i:Int, j:Int) {
		var held = state[i];
		state[i] = state[j];
		state[j] = held;
	}
}
